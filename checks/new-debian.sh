# shellcheck shell=bash
#
# What the tests on a new Debian share. Sourced by them, as root.

# shellcheck source-path=SCRIPTDIR source=../scripts/setup.sh
. "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../scripts/setup.sh"

# set_up_debian RELEASE: a minimal Debian of that release in the folder $fresh, until the script ends.
set_up_debian() {
    local mirror
    install_packages debootstrap
    fresh=$(mktemp -d)
    trap 'rm -rf "$fresh"' EXIT
    chmod 755 "$fresh"
    # shellcheck disable=SC2016
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' \
        "Codename: $(. /etc/os-release && echo "$VERSION_CODENAME")")
    say "setting up a minimal Debian, $1"
    debootstrap --variant=minbase "$1" "$fresh" "${mirror%%$'\n'*}" >"$fresh.log" 2>&1 ||
        { tail "$fresh.log" >&2 && give_up "no Debian could be set up"; }
    rm "$fresh.log"
}

# within COMMAND...: runs it in that Debian, where it has processes and terminals to look at.
within() {
    # shellcheck disable=SC2016
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive HOME=/root \
        unshare --mount sh -ec 'mount -t proc proc "$0/proc"
            mount -t devpts -o newinstance,ptmxmode=0666 devpts "$0/dev/pts"
            exec chroot "$0" "$@"' "$fresh" "$@"
}
