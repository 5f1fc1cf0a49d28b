#pragma once

#include "pages/uitype.h"
#include "task/abstracttask.h"

#include <vector>

class FunctionPage;
class LiveData;
class TaskLinks;

/// How a page is entered.
enum class Plan {
    Menu, // the measurement goes on, unless its function is one that ends with its page
    Live, // starts the basic function where it does not run
    Commanded, // its function starts by the user's command
    Settings, // ends the measurement
    Overlay, // over the current page, which stays current
    Unreached, // stands in the stack, but nothing leads there in this release
};

/// What a page hears of the task; see TaskLinks.
namespace Hears {
enum Flag : unsigned {
    Refresh = 1, // every update of the display, while the page is in front
    StopWatch = 2, // the time of the run, while in front
    RecordTime = 4, // in its place the time of the recording
    Hold = 8, // hold and run, in front or not; its own F5 asks the task for them
    Begin = 16, // a run begins
};
constexpr unsigned kLive = Refresh | StopWatch | Hold | Begin;
constexpr unsigned kFront = Refresh | StopWatch;
} // namespace Hears

/// A tile of the menu: where it stands, row by row from 1 (0: none), its object name and the name of its pictures, and
/// its caption.
struct MenuTile
{
    int place;
    const char *name;
    const char *caption;
};

/// Everything that the shell knows of a page. A page is made known by one row.
struct PageRow
{
    _quvera_ui_type type; // of several rows with one type, the first that can be reached answers to it
    const char *title;
    MenuTile tile;
    Plan plan;
    AbstractTask::UniFunction function; // that it demands of the task
    unsigned hears; // Hears::Flag
    int languageTurn; // its turn when the language changes, from 1; 0: it is not retranslated
    int beginTurn; // its turn in initUiParameter, from 1; 0: left out
    FunctionPage *(*make)(TaskLinks &, const LiveData &); // null: the menu, which stands for itself
    bool at400Hz = true; // false: no such function at a nominal frequency of 400 Hz
    bool (*entersAgain)() = nullptr; // Commanded: whether it begins anew although its function runs
};

namespace PageTable {

/// All rows, in the order of the stack; the menu is first.
const std::vector<PageRow> &rows();
/// The row that answers to a type; null without one.
const PageRow *row(_quvera_ui_type type);
/// Rows that have a turn, in the order of their turns.
std::vector<const PageRow *> inTurn(int PageRow::*turn);
/// The title in the language in force; empty for a type without a row.
QString title(_quvera_ui_type type);

} // namespace PageTable
