#!/bin/bash
# Builds the help: build_help.sh SOURCES TOPICS.def WORK OUTPUT.chm
# SOURCES/topics holds the bodies of the pages, whose first line is the heading;
# SOURCES/contents.txt and index.txt are lists of them. TOPICS.def names the pages and
# gives each its context number. Everything between is made in the folder WORK.
set -euo pipefail
sources=$(cd "$1" && pwd)
table=$(realpath "$2")
work=$3
output=$(realpath -m "$4")

rm -rf "$work"
mkdir -p "$work/tool"
work=$(cd "$work" && pwd)

# "name number file" for each topic.
topics=$(sed -nE 's/^HELP_TOPIC\((\w+), ([0-9]+), "([^"]+)"\)$/\1 \2 \3/p' "$table")
[[ -n $topics ]] || { echo "No topics in $table" >&2; exit 1; }

title_of() { sed -nE '1s|^<h1>(.*)</h1>$|\1|p' "$sources/topics/$1"; }

page() {
    local title
    title=$(title_of "$1")
    [[ -n $title ]] || { echo "$1 does not begin with its heading" >&2; exit 1; }
    printf '<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01//EN">\n<html><head>\n'
    printf '<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">\n'
    printf '<title>%s</title>\n<link rel="stylesheet" type="text/css" href="help.css">\n' "$title"
    printf '</head><body>\n'
    cat "$sources/topics/$1"
    printf '</body></html>\n'
}

# item NAME PAGE: a line of contents or index; a book has no page.
item() {
    printf '<LI><OBJECT type="text/sitemap"><param name="Name" value="%s">' "$1"
    [[ -z $2 ]] || printf '<param name="Local" value="%s">' "$2"
    printf '</OBJECT>\n'
}

site_map() {
    printf '<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">\n<HTML><BODY>\n'
    cat
    printf '</BODY></HTML>\n'
}

# Lines of contents.txt: a page, or "Book:"; pages of a book stand two blanks in.
contents() {
    local line inside=
    printf '<UL>\n'
    while IFS= read -r line; do
        if [[ -n $inside && $line != '  '* ]]; then printf '</UL>\n'; inside=; fi
        case $line in
        *:) item "${line%:}" ""; printf '<UL>\n'; inside=1 ;;
        *) line=${line#  }; item "$(title_of "$line")" "$line" ;;
        esac
    done <"$sources/contents.txt"
    [[ -z $inside ]] || printf '</UL>\n'
    printf '</UL>\n'
}

# Lines of index.txt: "keyword = page".
index() {
    local line
    printf '<UL>\n'
    while IFS= read -r line; do item "${line% = *}" "${line##* = }"; done \
        < <(LC_ALL=C sort -f "$sources/index.txt")
    printf '</UL>\n'
}

project() {
    local name number file
    cat <<'END'
[OPTIONS]
Compatibility=1.1 or later
Contents file=contents.hhc
Index file=index.hhk
Default topic=welcome.html
Title=Magpie Help
Default Window=main
Full-text search=Yes
Binary TOC=No
Binary Index=No
Language=0x409 English (United States)

[WINDOWS]
main="Magpie Help","contents.hhc","index.hhk","welcome.html","welcome.html",,,,,0x63520,220,0x387e,[60,40,960,720],0xB0000,,,,,,0

[FILES]
END
    while read -r name number file; do echo "$file"; done <<<"$topics"
    echo help.css
    (cd "$sources" && printf '%s\n' pictures/*.png)
    printf '\n[ALIAS]\n'
    while read -r name number file; do echo "$name=$file"; done <<<"$topics"
    printf '\n[MAP]\n'
    while read -r name number file; do echo "#define $name $number"; done <<<"$topics"
}

while read -r name number file; do page "$file" >"$work/$file"; done <<<"$topics"
cp "$sources/help.css" "$work/"
cp -r "$sources/pictures" "$work/"
contents | site_map >"$work/contents.hhc"
index | site_map >"$work/index.hhk"
project >"$work/magpie.hhp"

fpc -v0 -O1 "-FU$work/tool" "-FE$work/tool" "$sources/compile_help.pas" >"$work/tool/log" 2>&1 ||
    { cat "$work/tool/log" >&2; exit 1; }
cd "$work"
tool/compile_help magpie.hhp "$output" >"$work/tool/log" || { cat "$work/tool/log" >&2; exit 1; }
