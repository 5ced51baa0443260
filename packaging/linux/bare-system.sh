# A bare Debian 12 to try packages in. Sourced by the tests of packages; sets `system`.
# shellcheck shell=bash

cache=${XDG_CACHE_HOME:-$HOME/.cache}/quillor
bare=$cache/debian-12
# shellcheck disable=SC2034 # the sourcing scripts look into it
system=$cache/debian-12-test

step() { echo "== $1"; }
fail() { echo "failed: $1" >&2; exit 1; }

# inside COMMAND...: in the system, as its root; as_player: as a person without rights.
inside() {
    chroot "$system" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
        DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 "$@"
}

as_player() {
    chroot --userspec=player:player "$system" env -i PATH=/usr/bin:/bin:/usr/games \
        HOME=/home/player LC_ALL=C.UTF-8 "$@"
}

# Makes the bare system once, and a copy of it, with a player, for each test.
fresh_system() {
    if [ ! -e "$bare/etc/debian_version" ]; then
        command -v debootstrap >/dev/null || apt-get install -y -qq debootstrap >/dev/null
        rm -rf "$bare.new"
        debootstrap --variant=minbase bookworm "$bare.new" >/dev/null
        mv "$bare.new" "$bare"
    fi
    clear_system
    cp -a "$bare" "$system"
    trap clear_system EXIT
    cp /etc/resolv.conf "$system/etc/"
    # How this machine reaches packages is how that one does.
    cp -r /etc/apt/apt.conf.d/. "$system/etc/apt/apt.conf.d/"
    mount --bind /dev "$system/dev"
    mount -t proc proc "$system/proc" 2>/dev/null || mount --bind /proc "$system/proc"
    inside useradd -m player
    inside apt-get update -qq
}

# Nothing of the machine's own may be below it when it is removed.
clear_system() {
    local place
    for place in proc dev; do
        ! mountpoint -q "$system/$place" || umount -l "$system/$place" || return
    done
    rm -rf --one-file-system "$system"
}

# on_screen COMMAND...: as the player, with a screen in memory; ends as the command does.
# What xvfb-run itself ends with tells of its own clearing up, too.
on_screen() {
    rm -f "$system/home/player/code"
    # shellcheck disable=SC2016 # the inner shell's
    as_player xvfb-run -a sh -c '"$@"; echo $? >~/code' command "$@" || true
    return "$(cat "$system/home/player/code" || echo 1)"
}

# Starts a program and ends it after a while: it must live so long.
starts() {
    local code=0
    on_screen timeout --preserve-status 15 "$@" || code=$?
    [ "$code" -eq 143 ] || fail "the program ended by itself with $code"
}

# The tour leaves one picture of each screen and state.
count_pictures() {
    local count
    count=$(find "$1" -name '*.png' | wc -l)
    [ "$count" -gt 20 ] || fail "the tour left $count pictures"
}

# needs_nothing FILE: the system has every library that the file loads.
needs_nothing() {
    local missing
    [ -f "$system$1" ] || fail "there is no $1"
    missing=$(inside ldd "$1" | grep "not found") && fail "$1 lacks $missing"
    return 0
}
