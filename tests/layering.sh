#!/bin/sh
# Fails when a file includes what does not belong on its floor:
#   - a header of the Windows SDK outside the folders that face Windows;
#   - a folder above its own;
#   - a header that leads back to itself.
#
# Usage: tests/layering.sh [source folder]
set -eu
cd "${1:-$(dirname "$0")/..}"

# "file kind header" for every include of ours; kind is < or ".
find platform store core entries views mainwindow tray browser config companion program \
    tests bench fuzz resources -name '*.h' -o -name '*.cpp' -o -name '*.c' 2>/dev/null |
    sort |
    xargs grep -HoE '^ *# *include *[<"][^>"]+' |
    sed -E 's/^([^:]+): *# *include *([<"])/\1 \2 /' |
    awk '
    function complain(text) {
        print file " includes " header ": " text
        bad = 1
    }

    # Whether a path is in the list, or in one of its folders.
    function within(path, folders,    list, each) {
        split(folders, list, " ")
        for (each in list)
            if (path == list[each] || index(path, list[each] "/") == 1) return 1
        return 0
    }

    # The only folders of ours that a file may include; "" for any but the back ends.
    function allowed(path) {
        # What the program knows: the globals, the records with their index, and the groups.
        if (within(path, "core/state.h store/records.h store/text_index.h store/index_list.h"))
            return "platform/runtime store/records.h store/text_index.h store/index_list.h"
        if (within(path, "platform/runtime")) return "platform/runtime"
        if (within(path, "platform/api")) return "platform/api"
        if (within(path, "platform/win32")) return "platform/api platform/win32"
        if (within(path, "platform/memory")) return "platform/api platform/memory"
        # What reads the bookmarks of others stands alone.
        if (within(path, "companion/import")) return "companion/import"
        if (within(path, "platform/controls platform/services"))
            return "platform/runtime platform/api platform/controls platform/services"
        # A test asks both desktops the same, so it sees the seam alone. The hand of its
        # user is another on either desktop.
        if (path ~ /^tests\/conformance\/.*(_test\.cpp|\.h)$/)
            return "platform/api tests/conformance"
        if (within(path, "tests fuzz bench")) return "*"
        return ""
    }

    function facesWindows(path) {
        if (within(path, "companion/import"))
            return within(path, "companion/import/windows") && path ~ /\.cpp$/
        return within(path, "platform/win32 companion/com tests/desktop") ||
            (path ~ /^tests\/conformance\/.*\.cpp$/ && path !~ /_test\.cpp$/)
    }

    {
        file = $1
        header = $3
        files++
        if ($2 == "<") {
            # The standard library of C++ has no ".h".
            if (header ~ /\.h$/ && header !~ /^(gtest|gmock|benchmark)\// && !facesWindows(file))
                complain("a header of the system")
            next
        }
        # Ours are named from the source folder, or stand beside the file.
        if (header !~ /\//) {
            beside = file
            sub(/[^\/]*$/, "", beside)
            header = beside header
        }
        edges[file] = edges[file] " " header
        floor = allowed(file)
        if (floor == "*") next
        if (floor == "") {
            if (within(header, "platform/memory platform/win32 tests"))
                complain("a back end or a test")
        } else if (!within(header, floor)) {
            complain("only " floor)
        }
    }

    # Depth first; 1: on the way, 2: done.
    function visit(at, way,    list, count, each) {
        if (state[at] == 2) return
        if (state[at] == 1) {
            print "headers in a circle:" way " " at
            bad = 1
            return
        }
        state[at] = 1
        count = split(edges[at], list, " ")
        for (each = 1; each <= count; each++) visit(list[each], way " " at)
        state[at] = 2
    }

    END {
        for (start in edges)
            if (start ~ /\.h$/) visit(start, "")
        if (files < 100) {
            print "only " files + 0 " includes found"
            bad = 1
        }
        exit bad
    }'
