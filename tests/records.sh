#!/bin/sh
# Fails when a record of the seam is not held against the SDK's in check_records.cpp:
# the record itself, or one of its members. A record that is marked as the program's own, in
# the line of its name, is one that the Windows side translates.
#
# Usage: tests/records.sh [source folder]
set -eu
cd "${1:-$(dirname "$0")/..}"

awk '
    FILENAME ~ /check_records\.cpp$/ {
        checked = checked " " $0
        next
    }
    /^struct .*\/\/ the program.s own/ { next }
    /^struct [A-Za-z0-9_]+ \{/ {
        record = $2
        records++
        if (checked !~ "(\\(|::)" record "[,)]") missing[record]
        next
    }
    /^};/ { record = "" }
    record != "" && match($0, /[A-Za-z0-9_]+(\[[0-9]+\])?;/) {
        member = substr($0, RSTART)
        sub(/[[;].*/, "", member)
        if (checked !~ "[(:]" record ", ([A-Za-z0-9_]+, )?" member "\\)") missing[record "." member]
    }
    END {
        for (each in missing) {
            print "not in check_records.cpp: " each
            bad = 1
        }
        if (records < 20) {
            print "only " records + 0 " records found"
            bad = 1
        }
        exit bad
    }' platform/win32/check_records.cpp platform/api/*.h
