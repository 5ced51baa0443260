#!/usr/bin/env bash
# Builds the page into a folder that any static web server can serve.
#
# web/build.sh [OUTPUT-FOLDER]     default: build/web
# Needs Debian's packages alone; they are installed where they are missing.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
output=${1:-$root/build/web}
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"

install_packages "${packages_web[@]}"
# The compiler builds its own libraries at first use, into a folder that we may write to,
# and its optimiser finds its parser where Debian has it.
export EM_FROZEN_CACHE=
export EM_CACHE=${EM_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/quillor-emscripten}
export NODE_PATH=/usr/share/nodejs

version=$(sed -n 's/^project(Quillor VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
compiled=$root/build/emscripten
made=$compiled/page

compile() {
    cmake -S "$root" --preset emscripten >"$compiled-configure.log" || {
        cat "$compiled-configure.log"
        return 1
    }
    cmake --build "$compiled"
}

# subset FONT NAME LETTERS: compressed, with what the game shows in it.
subset() {
    /usr/bin/python3 -m fontTools.subset "$1" --output-file="$made/$2.woff2" --flavor=woff2 --layout-features='*' \
        --unicodes="$3"
}

# All packs in one file: a path and its bytes, each as the character of that number.
pack_topics() {
    python3 - "$root/resources/topics" <<'END'
import json, pathlib, sys
packs = {}
for language, folder in (("es", "Temas"), ("en", "Topics")):
    for pack in sorted(pathlib.Path(sys.argv[1], language).glob("*.txt")):
        packs[f"{folder}/{pack.name}"] = pack.read_bytes().decode("latin-1")
print(json.dumps(packs, ensure_ascii=False, sort_keys=True))
END
}

# The manual as a page: the text as it is, between the two marks of its languages.
make_manual() {
    python3 - "$root/resources/Quillor-Manual.txt" <<'END'
import html, re, sys
text = open(sys.argv[1], encoding="utf-8-sig", newline="").read().replace("\r\n", "\n")
spanish, english = re.split(r"(?=^=+\nENGLISH\n=+$)", text, flags=re.M)
print(f"""<!doctype html>
<html lang="es">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'self'; img-src 'self'">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Quillor</title>
<link rel="stylesheet" href="manual.css">
</head>
<body>
<main>
<h1>Quillor</h1>
<nav><a href="#es">Español</a> <a href="#en" lang="en">English</a></nav>
<pre id="es">{html.escape(spanish)}</pre>
<pre id="en" lang="en">{html.escape(english)}</pre>
</main>
</body>
</html>""")
END
}

gather() {
    rm -rf "$made"
    mkdir -p "$made"
    cp "$compiled/web/quillor.mjs" "$compiled/web/quillor.wasm" "$made/"
    cp "$root"/web/page/*.js "$root"/web/page/*.css "$made/"
    rm "$made/sw.js"
    cp "$root"/resources/pictures/*.svg "$root"/resources/icon/quillor.svg \
        "$root"/resources/icon/quillor-{48,256,512}.png "$root"/resources/sounds/10[1-6].wav \
        "$made/"
    subset /usr/share/fonts/truetype/quicksand/Quicksand-Bold.ttf rounded \
        U+0020-017F,U+2010-2026,U+2039,U+203A,U+20AC,U+2122
    subset /usr/share/fonts/opentype/comic-neue/ComicNeue-Bold.otf comic U+0020-007E
    cp /usr/share/doc/fonts-quicksand/copyright "$made/Quicksand-Licence.txt"
    cp /usr/share/doc/fonts-comic-neue/copyright "$made/Comic-Neue-Licence.txt"
    pack_topics >"$made/packs.json"
    make_manual >"$made/manual.html"
    chmod -R u=rwX,go=rX "$made"
}

# What a version has stands in a folder of its own, named for what is in it: two versions
# never mix, whoever keeps copies on the way.
publish() {
    local digest
    digest=$(cd "$made" && find . -type f | LC_ALL=C sort | xargs -d '\n' sha256sum | sha256sum)
    local name=$version-${digest:0:12}
    local preloads styles files
    preloads=$(cd "$made" && find . -name '*.js' \
        -printf '<link rel="modulepreload" href="@VERSION@/%P">\n' | LC_ALL=C sort)
    styles=$(cd "$made" && find . -name '*.css' ! -name manual.css \
        -printf '<link rel="stylesheet" href="@VERSION@/%P">\n' | LC_ALL=C sort)
    files=$(cd "$made" && find . -type f -printf '@VERSION@/%P\n' | LC_ALL=C sort |
        sed ':all; N; $!ball; s/\n/",\n    "/g')
    rm -rf "$output"
    mkdir -p "$output"
    cp -R "$made" "$output/$name"
    fill() {
        PRELOADS=$preloads STYLES=$styles FILES=$files NAME=$name python3 -c '
import os, sys
text = sys.stdin.read()
for mark in ("PRELOADS", "STYLES", "FILES"):
    text = text.replace(f"@{mark}@", os.environ[mark])
sys.stdout.write(text.replace("@VERSION@", os.environ["NAME"]))' <"$root/web/page/$1" >"$output/$1"
    }
    fill index.html
    fill sw.js
    fill manifest.webmanifest
    cp "$root/LICENSE" "$output/LICENSE.txt"
}

mkdir -p "$root/build"
compile
gather
publish
echo "$output"
