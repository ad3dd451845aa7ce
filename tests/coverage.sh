#!/bin/sh
# Fails when the conformance suite leaves a line of the memory desktop unexecuted: what
# the real desktop was never asked is not allowed to exist. Not counted are the tests'
# own hands on it (driver*.cpp) and the lines that refuse what they do not know.
# The preset builds without ccache: an object from there keeps its counts where it was
# first built.
#
# Usage: tests/coverage.sh [build folder]
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build/coverage}

cd "$root"
cmake --preset coverage -B "$build" >"$build.log" 2>&1 || { cat "$build.log"; exit 1; }
cmake --build "$build" --target conformance >"$build.log" 2>&1 || { cat "$build.log"; exit 1; }

objects=$build/platform/CMakeFiles/magpie_desktop.dir/memory
find "$build" -name '*.gcda' -delete

# One process for each test, as ctest runs them: a desktop is never put back.
failed=0
suite=
"$build/bin/conformance" --gtest_list_tests >"$build.tests"
while read -r line; do
    case $line in
    Running*) ;;
    *.) suite=$line ;;
    *)
        test=$suite${line%% *}
        if ! "$build/bin/conformance" --gtest_filter="$test" --gtest_brief=1 \
            >"$build.log" 2>&1 </dev/null; then
            echo "failed: $test"
            cat "$build.log"
            failed=1
        fi
        ;;
    esac
done <"$build.tests"
[ "$failed" = 0 ] || exit 1

reports=$build/gcov
rm -rf "$reports"
mkdir -p "$reports"
cd "$reports"
# By the notes of the compiler, not by the counts of the run: a source that nothing ran has
# no counts, and none of its lines may be passed over for that.
gcov --preserve-paths --object-directory "$objects" "$objects"/*.gcno >/dev/null 2>&1

# A line of a report is "count:number:text"; "#####" counts what never ran. A header has
# a report for each source that includes it: it is covered when one of them ran it.
status=0
awk -F: '
    {
        count = $1
        number = $2
        gsub(/ /, "", count)
        gsub(/ /, "", number)
        if (number == 0 && $3 == "Source") {
            file = $4
            counted = file ~ /platform\/memory\/[a-z_]+\.(cpp|h)$/ &&
                file !~ /platform\/memory\/(driver[a-z_]*|refuse)\.(cpp|h)$/
            sub(/.*platform\/memory\//, "platform/memory/", file)
            next
        }
        if (!counted || number !~ /^[1-9]/ || count == "-") next
        place = file ":" number
        text = $0
        sub(/^[^:]*:[^:]*:/, "", text)
        lines[place] = text
        if (count ~ /^[0-9]/) ran[place] = 1
    }
    END {
        for (place in lines) {
            all++
            if (place in ran) continue
            # Nor is the clean-up that gcov counts at a closing brace.
            if (lines[place] ~ /refuse\(|^ *}$/) { all--; continue }
            print place ": " lines[place]
            missed++
        }
        printf "%d lines of the memory desktop, %d not executed\n", all, missed
        exit missed > 0 || all == 0
    }' ./*.gcov >"$build.missed" || status=1
sort -t: -k1,1 -k2,2n "$build.missed"
exit $status
