#include "views/sorting.h"

#include "core/state.h"
#include "mainwindow/form3.h"
#include "views/row_comparison.h"

namespace magpie {

namespace {

// The hourglass over one list, until the routine that took it ends, however it ends.
class ListHourglass {
public:
    explicit ListHourglass(ListView& list) : list_(list) { list.MousePointer(Pointer::hourglass); }
    ~ListHourglass() { list_.MousePointer(Pointer::standard); }
    ListHourglass(const ListHourglass&) = delete;
    ListHourglass& operator=(const ListHourglass&) = delete;

private:
    ListView& list_;
};

void keepSorted(ListView& list) {
    list.SortOrder(0);
    list.Sorted(true);
}

void sortOnce(ListView& list, void (*sort)(ListView&)) {
    list.Sorted(false);
    sort(list);
}

}  // namespace

void columnHeading_Click(int heading) {
    ListView& list = Form3.ListView1[lvIndex];
    const ListHourglass wait(list);
    list.SortKey(heading - 1);
    switch (heading) {
        case 1:
        case 2:
        case 4: keepSorted(list); break;
        case 3: sortOnce(list, sortByRated); break;
        case 5: sortOnce(list, sortByLastVisited); break;
        case 6: sortOnce(list, sortByCreated); break;
        case 7: sortOnce(list, sortByVisited); break;
        default: break;
    }
    list.Refresh();
}

void mnuSortz_Click(int Index) {
    ListView& list = Form3.ListView1[lvIndex];
    list.SortOrder(0);
    switch (Index) {
        case 0: list.SortKey(0); break;
        case 1: list.SortKey(2); break;
        case 2:
            list.SortOrder(1);
            list.SortKey(6);
            break;
        case 3: list.SortKey(4); break;
        case 5: list.SortKey(1); break;
        case 6: list.SortKey(5); break;
        default: break;
    }
}

}  // namespace magpie
