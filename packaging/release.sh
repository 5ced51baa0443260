#!/usr/bin/env bash
# Makes everything that a release has, from a clean clone of what is committed: the source,
# the packages, and a file of checksums. Two runs of one commit make the same files.
#
# release.sh [OUTPUT-FOLDER]     default: build/release
# QUILLOR_RELEASE  which parts, of: source debian linux windows (default: all)
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
output=${1:-$root/build/release}
rm -rf "$output"
mkdir -p "$output"
output=$(cd "$output" && pwd)
version=$(sed -n 's/^project(Quillor VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
released=$(sed -n 's/^## [0-9.]* (\([0-9-]*\))$/\1/p' "$root/CHANGELOG.md" | head -1)
SOURCE_DATE_EPOCH=$(date -u -d "$released 12:00" +%s)
export SOURCE_DATE_EPOCH

# Always the same folder: its name must not tell two builds apart.
clone=$root/build/release-clone
rm -rf "$clone"
git clone --quiet --no-hardlinks "$root" "$clone"
cd "$clone"

for part in ${QUILLOR_RELEASE:-source debian linux windows}; do
    echo "== $part"
    case "$part" in
        source)
            # Its times are the commit's.
            git archive --format=tar --prefix="quillor-$version/" HEAD |
                xz -T1 -6 >"$output/quillor-$version.tar.xz"
            ;;
        debian)
            packaging/debian/build.sh "$clone/build/packages"
            cp build/packages/quillor_*.deb "$output/"
            ;;
        linux) packaging/linux/build-portable.sh "$output" ;;
        windows) packaging/windows/build.sh "$output" ;;
        *) echo "no such part: $part" >&2; exit 2 ;;
    esac
done

cd "$output"
sha256sum -- * >SHA256SUMS
cat SHA256SUMS
