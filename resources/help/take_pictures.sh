#!/bin/bash
# Takes the help's pictures anew from those that the desktop journeys leave in
# build/screenshots: run the journeys first (pictures, faces, menus, entries, bulk,
# find_and_masks, preferences, companion). The results are checked in.
#   ./resources/help/take_pictures.sh [folder of screenshots]
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
shots=${1:-$root/build/screenshots}
pictures=$root/resources/help/pictures

# save PICTURE: few colours and no remarks keep a picture of a window at some kilobytes.
save() { convert - +dither -colors 64 -define png:compression-level=9 -strip "PNG8:$pictures/$1.png"; }

# window SCREENSHOT PICTURE
window() { convert "$shots/$1-96.png" png:- | save "$2"; }

# part SCREENSHOT PICTURE GEOMETRY: of a menu over its window; the empty desktop turns white.
part() {
    convert "$shots/$1-96.png" -crop "$3" +repage -bordercolor black -border 1 -fill white \
        -draw 'color 0,0 floodfill' -shave 1x1 -trim +repage png:- | save "$2"
}

window standard standard
window advanced advanced
window face-mask index_mask
window face-filter filter
window url-information url_information
window url-information-extended extended
window mask-filters mask_filters
window find find
window move move
window confirm-delete confirm_delete
for page in browser line window files; do window "preferences-$page" "preferences_$page"; done
window companion-about about
window companion-import import_report
window tray-menu tray_menu
for state in offline flushed ready held; do window "pad-$state" "pad_$state"; done
part menu-main-standard main_menu 410x330+370+50
part menu-entry entry_menu 440x280+50+50
part menu-group group_menu 360x270+390+50
part menu-sort sort_menu 440x280+50+50
