#pragma once

#include <QRect>

#include <memory>
#include <vector>

class AnchorsGroup;
class MainWnd;
class QGraphicsItem;
class QGraphicsView;
class QWidget;
class StageControl;
class TonicKeyItem;

/// A place where Tab stops: a widget, or a part of a view with the controls that stand there, row by row.
struct StageStop
{
    using Row = std::vector<StageControl*>; ///< from left to right
    QWidget* widget = nullptr;
    std::vector<Row> rows{};      ///< none for a widget that sees to its own keys
    StageControl* home = nullptr; ///< where one arrives for the first time, or null
};

/// Every stop of the window, in the order of the eye. Made once; what is not to be reached now is told apart.
class StageStops
{
public:
    explicit StageStops(MainWnd& mainWindow);
    ~StageStops();
    Q_DISABLE_COPY_MOVE(StageStops)

    [[nodiscard]] const std::vector<StageStop>& all() const { return stops; }
    /// False for what is hidden, covered or asleep.
    [[nodiscard]] bool isReachable(const StageStop& stop) const;
    [[nodiscard]] bool isReachable(const StageStop& stop, const StageControl* control) const;
    /// What can be reached of a row of the stop, from left to right.
    [[nodiscard]] StageStop::Row reachable(const StageStop& stop, const StageStop::Row& row) const;
    /// The one of them that is nearest to another control, which need not show; null if there is none.
    [[nodiscard]] StageControl* nearest(const StageStop& stop, const StageStop::Row& row,
                                        const StageControl& to) const;
    /// Where it is seen, in the window.
    [[nodiscard]] QRect placeOf(const StageStop& stop, const StageControl* control) const;

private:
    template <typename Control, typename... Arguments>
    StageControl* make(Arguments&&... arguments);
    void addOutKeyboard();
    void addSelector(bool ofScale);
    void addDisplay();
    void addGame();
    void addInKeyboard();
    [[nodiscard]] StageStop::Row selectorRow(bool ofScale);
    [[nodiscard]] StageStop::Row flagRow();
    [[nodiscard]] StageStop::Row anchorRow();
    [[nodiscard]] StageStop::Row keyRow(bool out, StageControl*& home);
    [[nodiscard]] bool isCovered(const QWidget* area) const;

    MainWnd& window;
    std::vector<std::unique_ptr<StageControl>> controls;
    std::vector<StageStop> stops;
};
