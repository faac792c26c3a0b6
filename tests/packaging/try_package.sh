#!/usr/bin/env bash
# Installs a package on a bare Debian 12, uses the program there as a person would, and removes it:
# nothing may be missing, and nothing may stay. The bare system stands in a folder; the screen is one
# that nobody sees. To be run as root.
#   try_package.sh PACKAGE.deb FOLDER
set -euo pipefail
deb=$(readlink -f "$1")
folder=$(readlink -f "$2")
bare=$folder/bare
readonly mirror=${DEBIAN_MIRROR:-http://deb.debian.org/debian}
readonly clerk=/home/clerk
failed=0
screen=
program=

say() { echo "try: $*"; }
fail() {
  echo "try: $*" >&2
  failed=1
}

leave() {
  [ -z "$program" ] || kill "$program" 2>/dev/null || true
  [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
  ! mountpoint -q "$bare/proc" || umount "$bare/proc"
  rm -rf --one-file-system "$bare"
}
trap leave EXIT

inside() { # a command on the bare system
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    /usr/sbin/chroot "$bare" "$@"
}

as_clerk() { # a command of a user who may write nowhere but at home
  env -i PATH=/usr/bin:/bin HOME=$clerk LC_ALL=C.UTF-8 DISPLAY="${DISPLAY:-}" \
    XDG_RUNTIME_DIR=$clerk/runtime STORE_CONNECT_TIMEOUT=1 /usr/sbin/chroot --userspec=clerk "$bare" "$@"
}

install_in() { inside apt-get install -y -qq --no-install-recommends "$@" >"$folder/apt.log" 2>&1 || {
  cat "$folder/apt.log" >&2
  exit 1
}; }

make_bare() { # the system itself is fetched once
  local archive=$folder/bookworm.tar
  if [ ! -e "$archive" ]; then
    say "fetching a bare Debian 12"
    debootstrap --variant=minbase bookworm "$bare" "$mirror" >"$folder/debootstrap.log"
    inside apt-get clean
    tar -C "$bare" -cf "$archive.new" .
    mv "$archive.new" "$archive"
  else
    mkdir -p "$bare"
    tar -C "$bare" -xf "$archive"
  fi
  mount -t proc proc "$bare/proc"
  cp /etc/resolv.conf "$bare/etc/resolv.conf"
  inside apt-get update -qq
}

files_of_system() { # all but what the package manager and the user keep for themselves
  (cd "$bare" && find . -xdev \( -path ./proc -o -path ./var/lib/dpkg -o -path ./var/lib/apt \
    -o -path ./var/cache -o -path ./var/log -o -path ./tmp -o -path ".$clerk" \) -prune -o -print) | sort
}

open_screen() {
  rm -f "$folder/screen"
  # It takes a number that nobody has, and tells it when it can be drawn on.
  Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$folder/screen" >/dev/null 2>&1 &
  screen=$!
  for _ in $(seq 100); do
    [ -s "$folder/screen" ] && break
    sleep 0.1
  done
  DISPLAY=:$(cat "$folder/screen")
  export DISPLAY
}

shows() { # whether a window of that title comes up
  for _ in $(seq 150); do
    xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && return
    sleep 0.1
  done
  fail "no window \"$1\" came up"
}

# Without a window manager nobody else gives a window the keyboard.
to_window() { xdotool windowfocus "$(xdotool search --onlyvisible --name "$1" | tail -1)"; }

# Another machine's server would be needed to get further than a refused login.
use_as_a_clerk() {
  local ended=0
  as_clerk store-client >"$folder/program.log" 2>&1 &
  program=$!
  shows "^로그인$"
  scrot -o "$folder/login.png"
  to_window "^로그인$"
  xdotool type --delay 30 u01
  xdotool key Return
  xdotool type --delay 30 geheim1
  xdotool key Return
  shows "^에러$"
  scrot -o "$folder/refused.png"
  to_window "^에러$"
  xdotool key Return
  sleep 0.5
  to_window "^로그인$"
  xdotool key Escape
  for _ in $(seq 100); do
    kill -0 "$program" 2>/dev/null || break
    sleep 0.1
  done
  if kill -0 "$program" 2>/dev/null; then
    fail "the program did not end"
    return
  fi
  wait "$program" || ended=$?
  program=
  [ "$ended" -eq 0 ] || fail "the program ended with $ended: $(cat "$folder/program.log")"
  # A machine without a sound card says so by itself.
  local said
  said=$(grep -v '^ALSA lib' "$folder/program.log" || true)
  [ -z "$said" ] || fail "the program said: $said"
}

log_has() { grep -q "$1" "$bare$clerk/.local/share/store-client/log/store-client.log" || fail "the log lacks: $1"; }

check_log() {
  cp "$bare$clerk/.local/share/store-client/log/store-client.log" "$folder/" || return
  local log=$bare$clerk/.local/share/store-client/log/store-client.log
  log_has "program: started: version $(dpkg-deb -f "$deb" Version)"
  log_has "program: ended"
  # The driver was found by its alias; what it could not find is the server.
  log_has "read failed: Can't connect to .* FROM ST WHERE  ST_CODE = '?' AND ST_PWD = '?'"
  ! grep -q geheim1 "$log" || fail "the log has the password"
}

make_bare
say "installing what the package needs"
inside useradd -m clerk
depends=$(dpkg-deb -f "$deb" Depends)
inside apt-get satisfy -y -qq --no-install-recommends "$depends" >"$folder/apt.log" 2>&1 ||
  { cat "$folder/apt.log" >&2; exit 1; }
files_of_system >"$folder/before"

say "installing the package"
cp "$deb" "$bare/tmp/store-client.deb"
install_in /tmp/store-client.deb
version=$(as_clerk store-client --version)
[ "$version" = "store-client $(dpkg-deb -f "$deb" Version)" ] || fail "--version says $version"
inside sh -c 'ldd /usr/lib/*/store-client/store_client' | grep "not found" && fail "a library is missing"
for file in /etc/store-client/OPT.ini /usr/share/store-client/guide/README.md \
  /usr/share/store-client/schema.sql /usr/share/applications/store-client.desktop; do
  inside test -r "$file" || fail "$file is not there"
done

say "using it"
mkdir -p "$bare$clerk/.config/store-client"
printf '[TARNWICK]\r\n데이터서버=127.0.0.1;PORT=9\r\n회사아이디=demo\r\n' | iconv -t CP949 \
  >"$bare$clerk/.config/store-client/OPT.ini"
mkdir -m 700 "$bare$clerk/runtime"
inside chown -R clerk: $clerk
open_screen
use_as_a_clerk
check_log

say "removing it"
inside apt-get purge -y -qq store-client >"$folder/apt.log" 2>&1 || fail "$(cat "$folder/apt.log")"
files_of_system >"$folder/after"
diff "$folder/before" "$folder/after" || fail "the machine is not as it was"
[ "$failed" -eq 0 ] && say "installed, used and removed; pictures are in $folder"
exit "$failed"
