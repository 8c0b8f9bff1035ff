#include "app/StageStops.h"

#include "app/MainWnd.h"
#include "headers/AnchorControl.h"
#include "headers/AnchorsGroup.h"
#include "headers/FlagControl.h"
#include "headers/HeaderController.h"
#include "headers/PowerControl.h"
#include "keys/KeyControl.h"
#include "keys/KeyControllerBase.h"
#include "keys/PowerItem.h"
#include "keys/SelectorControl.h"
#include "keys/SwitchItem.h"
#include "keys/pitch_mapping.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/GameCellControl.h"
#include "screen/LibraryButtonControl.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"
#include "screen/tictactoe_board.h"

#include <QGraphicsProxyWidget>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int middleC = 60;

/// The buttons of the library in the order of their places; they stand in one line, or nearly so.
constexpr LibraryButton::Code libraryRow[] = {
    LibraryButton::add_category, LibraryButton::delete_category, LibraryButton::rename_category,
    LibraryButton::add_scale,    LibraryButton::copy_scale,      LibraryButton::move_scale,
    LibraryButton::delete_scale, LibraryButton::scale_label,     LibraryButton::edit_abbr1,
    LibraryButton::edit_abbr2,   LibraryButton::edit_description};

} // namespace

StageStops::StageStops(MainWnd& mainWindow) : window(mainWindow)
{
    addOutKeyboard();
    addSelector(false);
    addDisplay();
    addGame();
    addSelector(true);
    addInKeyboard();
}

StageStops::~StageStops() = default;

template <typename Control, typename... Arguments>
StageControl* StageStops::make(Arguments&&... arguments)
{
    controls.push_back(std::make_unique<Control>(std::forward<Arguments>(arguments)...));
    return controls.back().get();
}

StageStop::Row StageStops::keyRow(bool out, StageControl*& home)
{
    StageStop::Row row;
    for (int note = pitch_mapping::lowestPitch; note <= pitch_mapping::highestPitch; ++note) {
        ResizableItem* in = window.findInNote(note);
        row.push_back(make<KeyControl>(out ? *static_cast<ResizableItem*>(in->pairedOutKey) : *in));
        if (note == middleC)
            home = row.back();
    }
    return row;
}

void StageStops::addOutKeyboard()
{
    StageStop stop{window.ui.outKeyboardGraphicsView};
    stop.rows.push_back(keyRow(true, stop.home));
    stops.push_back(stop);
}

// The first key of the scale is the tonic itself and answers to nothing.
StageStop::Row StageStops::selectorRow(bool ofScale)
{
    const KeyControllerBase* controller = ofScale ? window.scaleController : window.tonicController;
    StageStop::Row row;
    for (int index = ofScale ? 1 : 0; index < 12; ++index)
        row.push_back(make<SelectorControl>(*controller->findKey(index)));
    return row;
}

void StageStops::addSelector(bool ofScale)
{
    const KeyControllerBase* controller = ofScale ? window.scaleController : window.tonicController;
    StageStop stop{window.ui.centerGraphicsView, {selectorRow(ofScale), {}}};
    StageStop::Row& below = stop.rows.back();
    const LibraryView* view = window.centerScreen->libraryView();
    if (ofScale)
        for (const auto code : {LibraryButton::open_library, LibraryButton::close_library})
            below.push_back(make<LibraryButtonControl>(view->button(code)));
    below.push_back(make<SwitchControl>(*controller->switchItem));
    stops.push_back(stop);
}

void StageStops::addDisplay()
{
    const LibraryView* view = window.centerScreen->libraryView();
    StageStop library{window.ui.centerGraphicsView, {{}}};
    for (const LibraryButton::Code code : libraryRow)
        library.rows.front().push_back(make<LibraryButtonControl>(view->button(code)));
    stops.push_back(library);
    const Ui_SorvaneClass& ui = window.ui;
    const CenterScreen* screen = window.centerScreen;
    for (QWidget* widget : std::initializer_list<QWidget*>{
             view->categories, view->scales, ui.buttonMIDIinOut, ui.buttonCredits, ui.buttonManual,
             screen->inPortList, screen->outPortList, ui.buttonExport, ui.buttonImport, ui.buttonReset,
             ui.scene1Button, ui.scene2Button, ui.scene34TopButton})
        stops.push_back({widget});
}

void StageStops::addGame()
{
    StageStop stop{window.ui.centerGraphicsView, {}};
    const auto items = window.ui.centerGraphicsView->scene()->items();
    for (QGraphicsItem* item : items)
        if (auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(item))
            for (int cell = 0; cell < tictactoe_board::cells; ++cell) {
                if (cell % tictactoe_board::side == 0)
                    stop.rows.emplace_back();
                stop.rows.back().push_back(make<GameCellControl>(*proxy, cell));
            }
    stops.push_back(stop);
}

// The power button takes its place among the flags anew whenever it is asked for: it moves.
StageStop::Row StageStops::flagRow()
{
    StageStop::Row row{make<PowerControl>(*window.powerItem)};
    for (HeaderItem* flag : qAsConst(window.headerController->headers))
        row.push_back(make<FlagControl>(*flag));
    return row;
}

StageStop::Row StageStops::anchorRow()
{
    AnchorsGroup& group = *window.powerItem->anchorsGroup;
    StageStop::Row row;
    const auto anchors = group.childItems(); // from -4 to 4
    for (QGraphicsItem* anchor : anchors)
        row.push_back(make<AnchorControl>(*static_cast<QGraphicsItemGroup*>(anchor), group));
    return row;
}

void StageStops::addInKeyboard()
{
    StageStop stop{window.ui.inKeyboardGraphicsView};
    stop.rows.push_back(flagRow());
    stop.rows.push_back(keyRow(false, stop.home));
    stop.rows.push_back(anchorRow());
    stops.push_back(stop);
}

// The scene says which of the hit areas lies above the others.
bool StageStops::isCovered(const QWidget* area) const
{
    const CenterScreen* screen = window.centerScreen;
    const int scene = screen->libraryOpen ? CenterScreen::scene_none : screen->currentScene;
    if (area == window.ui.scene1Button)
        return scene != CenterScreen::scene_default;
    if (area == window.ui.scene2Button)
        return scene != CenterScreen::scene_clean;
    if (area == window.ui.scene34TopButton)
        return scene != CenterScreen::scene_ports && scene != CenterScreen::scene_credits;
    return false;
}

bool StageStops::isReachable(const StageStop& stop) const
{
    if (!stop.widget->isVisible() || !stop.widget->isEnabled() || isCovered(stop.widget))
        return false;
    return stop.rows.empty() ||
           std::any_of(stop.rows.begin(), stop.rows.end(), [&](const StageStop::Row& row) {
               return std::any_of(row.begin(), row.end(),
                                  [&](const StageControl* control) { return isReachable(stop, control); });
           });
}

// A window that is narrower than the instrument cuts it off.
bool StageStops::isReachable(const StageStop& stop, const StageControl* control) const
{
    return control && control->isReachable() && window.rect().contains(placeOf(stop, control).center());
}

// Items move: a flag changes places with the power button, and the anchors slide.
StageStop::Row StageStops::reachable(const StageStop& stop, const StageStop::Row& row) const
{
    std::vector<std::pair<int, StageControl*>> found;
    for (StageControl* control : row)
        if (isReachable(stop, control))
            found.emplace_back(placeOf(stop, control).center().x(), control);
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    StageStop::Row sorted;
    for (const auto& each : found)
        sorted.push_back(each.second);
    return sorted;
}

StageControl* StageStops::nearest(const StageStop& stop, const StageStop::Row& row,
                                  const StageControl& to) const
{
    const int x = placeOf(stop, &to).center().x();
    const auto distance = [&](const StageControl* control) {
        return std::abs(placeOf(stop, control).center().x() - x);
    };
    const StageStop::Row all = reachable(stop, row);
    const auto found =
        std::min_element(all.begin(), all.end(), [&](auto* a, auto* b) { return distance(a) < distance(b); });
    return found != all.end() ? *found : nullptr;
}

QRect StageStops::placeOf(const StageStop& stop, const StageControl* control) const
{
    if (!control) {
        const QRect whole = stop.widget->rect() & QRegion(stop.widget->mask()).boundingRect();
        return {stop.widget->mapTo(&window, (whole.isEmpty() ? stop.widget->rect() : whole).topLeft()),
                whole.isEmpty() ? stop.widget->size() : whole.size()};
    }
    const auto* view = static_cast<const QGraphicsView*>(stop.widget);
    const QRect inView = view->mapFromScene(control->place()).boundingRect();
    return {view->viewport()->mapTo(&window, inView.topLeft()), inView.size()};
}
