#!/usr/bin/env bash
# Kills quillet-cli in the middle of many saves, and lets it write onto a full disk: each time the old file
# or the new one must be there, whole.   safe_writing.sh QUILLET-CLI [KILLS]
set -euo pipefail

cli=$1
kills=${2:-40}
folder=$(mktemp -d)
trap 'umount "$folder/disk" 2>/dev/null || true; rm -rf "$folder"' EXIT

printf '%s\n' cat dog > "$folder/few.txt"
for first in {a..z}; do for second in {a..z}; do for third in {a..z}; do
    printf '%s%s%s%s\n' $first $second $third $first
done; done; done > "$folder/many.txt"

"$cli" wordlist build "$folder/few.txt" "$folder/list.qld" > /dev/null
old=0 new=0
for ((i = 0; i < kills; ++i)); do
    "$cli" wordlist build "$folder/many.txt" "$folder/list.qld" > /dev/null 2>&1 &
    sleep "0.$(printf '%03d' $((RANDOM % 16)))"
    kill -9 $! 2> /dev/null || true
    wait $! 2> /dev/null || true
    case $("$cli" wordlist check "$folder/list.qld") in
        *" 2 words"*) old=$((old + 1)) ;;
        *" 17576 words"*) new=$((new + 1)) ;;
        *) echo "after kill $i the list is neither the old nor the new one" && exit 1 ;;
    esac
    "$cli" wordlist build "$folder/few.txt" "$folder/list.qld" > /dev/null
done
echo "killed $kills times: $old times the old list stood, $new times the new one"

mkdir "$folder/disk"
if mount -t tmpfs -o size=64k tmpfs "$folder/disk" 2> /dev/null; then
    "$cli" wordlist build "$folder/few.txt" "$folder/disk/list.qld" > /dev/null
    if "$cli" wordlist build "$folder/many.txt" "$folder/disk/list.qld" 2> "$folder/message"; then
        echo "writing onto a full disk went unnoticed" && exit 1
    fi
    "$cli" wordlist check "$folder/disk/list.qld" | grep -q " 2 words"
    [[ $(ls -A "$folder/disk") == list.qld ]] # and nothing is left over
    echo "full disk: the old list stood; $(cat "$folder/message")"
else
    echo "full disk: not tried, a disk of its own cannot be mounted here"
fi
