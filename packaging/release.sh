#!/usr/bin/env bash
# Makes everything that a release has, from a clean clone of what is committed: the source,
# the packages, and a file of checksums. Two runs of one commit make the same files.
#
# release.sh [OUTPUT-FOLDER]     default: build/release
# QUILLOR_RELEASE  which parts, of: source debian linux windows web (default: all)
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=packaging/version.sh
. "$root/packaging/version.sh"
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"
output=${1:-$root/build/release}
rm -rf "$output"
mkdir -p "$output"
output=$(cd "$output" && pwd)

# The page for the browser, as one file that any web server serves once it is unpacked.
make_page() {
    install_packages zip
    web/build.sh "$clone/build/page"
    date_files "$clone/build/page"
    (cd build/page && find . -type f | sort | zip -X -q "$output/quillor-$version-web.zip" -@)
}

# Always the same folder: its name must not tell two builds apart.
clone=$root/build/release-clone
rm -rf "$clone"
git clone --quiet --no-hardlinks "$root" "$clone"
cd "$clone"

for part in ${QUILLOR_RELEASE:-source debian linux windows web}; do
    echo "== $part"
    case "$part" in
        source)
            # Its times are the commit's.
            git -c tar.umask=0022 archive --format=tar --prefix="quillor-$version/" HEAD |
                xz -T1 -6 >"$output/quillor-$version.tar.xz"
            ;;
        debian)
            packaging/debian/build.sh "$clone/build/packages"
            cp build/packages/quillor_*.deb "$output/"
            ;;
        linux) packaging/linux/build-portable.sh "$output" ;;
        windows) packaging/windows/build.sh "$output" ;;
        web) make_page ;;
        *) echo "no such part: $part" >&2; exit 2 ;;
    esac
done

cd "$output"
sha256sum -- * >SHA256SUMS
cat SHA256SUMS
