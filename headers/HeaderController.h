#pragma once

#include "headers/HeaderItem.h"

#include <QList>
#include <QObject>
#include <QPointF>

#include <functional>

class QAction;
class QGraphicsSceneContextMenuEvent;
class QMenu;
class ScaleKeyController;
class TonicKeyController;

/// The 36 presets and the active one among them, whose record the selectors show. It moves state between the
/// selectors and the records when the active preset changes. Main thread only.
class HeaderController : public QObject
{
    Q_OBJECT

public:
    /// The menu belongs to `window`.
    explicit HeaderController(QWidget* window);

    // The active header (HeaderController.cpp)
    /// Recalls a header. With `store` the selectors are saved into the header that is left and, with the
    /// power on, loaded from the new one. A null item and an open dialog stop it.
    void setActiveHeader(HeaderItem* item, bool store);
    /// The header of the next black key below the active one, but for the power button's; nothing at the end.
    void setActiveHeaderPrev();
    void setActiveHeaderNext();
    /// Shows the active header in the selectors as a recall does, the anchors included.
    void showActiveHeader();
    /// The first header of that key, or null.
    [[nodiscard]] HeaderItem* findHeader(int keyNumber) const;
    [[nodiscard]] HeaderItem* findHeader(header_status status) const;
    /// Shows all headers but the one under the power button, or hides all and closes their menu.
    void setHeadersStatus(bool visible);
    /// Keeps the pitch position in a record; not valid, it clears the mark and leaves the old position.
    void storePitchPosition(header_data& data, bool valid) const;
    void restorePitchPosition(const header_data& data) const;

    // What the selectors store in the active header; nothing without one (HeaderController.cpp)
    /// The tonic was set; "" keeps the stored note. Kept: this marks the tonic as on, whatever the switch is.
    void storeTonic(const QString& name);
    void storeScale(bool on, const QString& word);
    void clearScaleNames();
    /// Brings the active header up to date after a key; in the scale's learn mode it takes the played word.
    void refreshActiveHeader(bool learnScale);

    // Records (HeaderController_records.cpp)
    /// Removes the library's temporary records that no header with its scale on holds.
    void removeUnusedTempRecords();
    /// The first number, 1 to 108, that no "User" name carries; 0 if all are taken.
    [[nodiscard]] int findMinUserNum() const;
    void getHeadersPosition(QList<QPointF>& positions) const;
    void getHeadersData(QList<header_data>& data) const;
    /// A short list moves only the first headers. Kept: so spelt.
    void updatePostions(const QList<QPointF>& positions);
    /// A short list writes only the first headers.
    void reloadHeaders(const QList<header_data>& data);
    /// Before records are reloaded: replaces the temporary records of the library by those of the words in
    /// `data` that it does not hold, with the names that the presets bear, so that these stay. The first
    /// record of a word counts, and the first word of a "User" number. Presets beyond a short list keep
    /// theirs.
    void nameUnknownScales(const QList<header_data>& data) const;
    /// Refreshes the headers of a scale word, or all for an empty one.
    void updateHeaderScenics(const QString& word);

    // Context menu (HeaderController_menu.cpp)
    void contextMenuEvent(HeaderItem* item, QGraphicsSceneContextMenuEvent* event);

    HeaderItem* contextHeader = nullptr; ///< the one that the menu works on, or null
    QMenu* const menu;
    QList<QAction*> actions; ///< of the menu, in its order
    HeaderItem* activeHeader = nullptr;
    QList<HeaderItem*> headers; ///< in ascending key order; owned by their scene
    bool hasCopy = false;
    header_data copyData; ///< the menu's clipboard

public slots:
    // Each works on contextHeader and does nothing without one (HeaderController_menu.cpp)
    void copyHdr();
    void pasteHdr();
    void lockTonic();
    void unlockTonic();
    void lockScale();
    void unlockScale();
    void lockBoth();
    void unlockBoth();
    void resetHdr();
    void eraseHdr();
    // These ask first (HeaderController_reset.cpp)
    void eraseAll();
    /// Back to the factory: library, headers, power button's place, pitch position.
    void resetAll();

private:
    void addAction(const QString& text, void (HeaderController::*slot)());
    void recallNeighbour(int step);
    [[nodiscard]] int leaveActiveHeader(bool store);
    void saveSelectors(header_data& data) const;
    void loadSelectors(const header_data& data, int offset);
    void visitContextHeader(const std::function<void()>& change);
    void setTonicLock(bool on);
    void setScaleLock(bool on);
    void resetSelectors(const header_data& data) const;

    QAction* pasteAction = nullptr;
};
