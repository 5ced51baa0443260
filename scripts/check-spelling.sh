#!/usr/bin/env bash
# Looks up every word of the topics that come with the game in the dictionaries of their
# language; resources/topics/allowed-words-*.tsv has the right ones that those lack, each
# with a reason. Prints the words that are in neither, and fails if there are any; 77
# where there are no dictionaries.
set -euo pipefail
export LC_ALL=C.UTF-8

topics=$(cd "$(dirname "${BASH_SOURCE[0]}")/../resources/topics" && pwd)

# words LANGUAGE: each word of its topics once, in small letters.
words() {
    cat "$topics/$1"/*.txt | iconv -f WINDOWS-1252 -t UTF-8 | sed 's/\[español\]//; s/.*/\L&/' |
        grep -oE '[[:alpha:]]{2,}' | sort -u
}

# missing DICTIONARY: the words of the input that it lacks.
missing() {
    hunspell -i UTF-8 -d "$1" -l | sort -u
}

# unknown LANGUAGE DICTIONARY: neither as they stand nor, as names are, with a capital.
unknown() {
    comm -23 <(words "$1" | missing "$2" | sed 's/./\u&/' | missing "$2" | sed 's/./\l&/' | sort) \
        <(cut -f 1 "$topics/allowed-words-$1.tsv" | sort)
}

# unneeded LANGUAGE DICTIONARY: allowed words without a reason, or that no topic has.
unneeded() {
    { awk -F '\t' 'NF != 2 || $2 == ""' "$topics/allowed-words-$1.tsv" | cut -f 1
        comm -13 <(words "$1") <(cut -f 1 "$topics/allowed-words-$1.tsv" | sort); } | sort -u
}

known=$(hunspell -D 2>&1 </dev/null || true)
if [[ $known != */es_ES* || $known != */en_US* ]]; then
    echo "hunspell and its dictionaries for Spanish and English are not installed." >&2
    exit 77
fi
status=0
for language in es en; do
    dictionary=$([ "$language" = es ] && echo es_ES || echo en_US)
    while read -r word; do
        echo "$language: not in the dictionary: $word"
        status=1
    done < <(unknown "$language" "$dictionary")
    while read -r word; do
        echo "$language: allowed without need or reason: $word"
        status=1
    done < <(unneeded "$language")
done
exit "$status"
