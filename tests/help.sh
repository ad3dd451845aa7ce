#!/bin/bash
# The help file is whole: tests/help.sh [PNSHelp.chm]
# Lists its topics, and fails unless each topic of the table is there with its heading,
# each context number leads to the topic that the table says, each link, picture and line of
# contents and index leads to something in the file, and every topic is in both of these.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
chm=$(realpath "${1:-$root/build/dist/PNSHelp.chm}")
table=$root/companion/help_topics.def
failures=0

[[ -s $chm ]] || { echo "No help file: $chm" >&2; exit 1; }
inside=$(mktemp -d)
trap 'rm -rf "$inside"' EXIT
chmls extractall "$chm" "$inside" >/dev/null 2>&1

complain() {
    echo "$*" >&2
    failures=$((failures + 1))
}

# What may follow a "#" is asked of the page itself.
resolves() {
    local page=${1%%#*} anchor=
    [[ $1 != *#* ]] || anchor=${1#*#}
    [[ -f $inside/$page ]] || return 1
    [[ -z $anchor ]] || grep -qE "(id|name)=\"$anchor\"" "$inside/$page"
}

check_links() {
    local file link
    for file in "$inside"/*.html "$inside"/*.hhc "$inside"/*.hhk; do
        while IFS= read -r link; do
            resolves "$link" || complain "${file##*/} leads to $link, which is not there"
        done < <(grep -oE '(href|src)="[^"]*"|name="Local" value="[^"]*"' "$file" |
            sed -E 's/.*="([^"]*)"$/\1/')
    done
}

# Each number in the file, as "number topic". The file keeps pairs of a number and a place
# in a block of texts that end in a zero byte, behind four bytes of length.
context_numbers() {
    local number place
    chmls extract "$chm" '/#IVB' "$inside/numbers" >/dev/null 2>&1
    chmls extract "$chm" '/#STRINGS' "$inside/texts" >/dev/null 2>&1
    while read -r number place; do
        printf '%s %s\n' "$number" \
            "$(tail -c "+$((place + 1))" "$inside/texts" | head -z -n 1 | tr -d '\0')"
    done < <(od -An -v -t u4 -w8 -j 4 "$inside/numbers")
}

check_table() {
    local name number file title found
    found=$(context_numbers)
    while read -r name number file; do
        title=$(sed -nE 's|.*<title>(.*)</title>.*|\1|p' "$inside/$file" 2>/dev/null || true)
        printf '%5d  %-28s %s\n' "$number" "$file" "$title"
        [[ -n $title ]] || complain "$file is missing or has no title"
        grep -qx "$number /$file" <<<"$found" || complain "Number $number does not lead to $file"
        grep -q "value=\"$file\"" "$inside/contents.hhc" || complain "$file is not in the contents"
        grep -q "value=\"$file\"" "$inside/index.hhk" || complain "No keyword leads to $file"
    done
    [[ $(wc -l <<<"$found") == "$topics" ]] || complain "The file has other numbers than the table"
}

rows=$(sed -nE 's/^HELP_TOPIC\((\w+), ([0-9]+), "([^"]+)"\)$/\1 \2 \3/p' "$table")
topics=$(grep -c '^HELP_TOPIC' "$table")
[[ $(wc -l <<<"$rows") == "$topics" ]] || complain "Not every row of the table can be read"
[[ $(cut -d' ' -f2 <<<"$rows" | sort -u | wc -l) == "$topics" ]] || complain "A number stands twice"
check_table <<<"$rows"
check_links
pages=$(find "$inside" -name '*.html' | wc -l)
[[ $pages == "$topics" ]] || complain "$pages pages, $topics topics in the table"
chmls -n list "$chm" 2>/dev/null | grep -qF '/$FIftiMain' || complain "No words to search for"
((failures == 0)) || exit 1
echo "$topics topics, every number and link leads somewhere."
