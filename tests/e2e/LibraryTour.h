#pragma once

#include "BrowserHand.h"
#include "BrowserModel.h"
#include "RealWindow.h"
#include "browser_places.h"
#include "screen/CategoryListWidget.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

#include <QtTest>

#include <functional>

/// The window agrees with the model, now or within a bounded time.
#define VERIFY_MODEL() QVERIFY2(agrees(), qPrintable(disagreement))
/// The fields of the dialog that is shown, each as "name: text".
#define VERIFY_FIELDS(...) QCOMPARE(fields(), (QStringList{__VA_ARGS__}))

/// A window, a hand, the model of what the hand should bring about, and the moves that the tour is made of.
/// Those that press a row tell the model too.
class LibraryTour : public QObject
{
protected:
    // The factory's categories, and those that the tour makes
    const QString majors = QStringLiteral("1 - Major Scale Modes"),
                  minors = QStringLiteral("2 - Melodic Minor Modes"),
                  symmetrics = QStringLiteral("3 - Symmetric Scales"),
                  pentatonics = QStringLiteral("4 - Pentatonic Scales"),
                  blues = QStringLiteral("5 - Blues Scales"), users = QStringLiteral("10 - User Scales"),
                  encores = QStringLiteral("Übung ♪ 2"), evening = QStringLiteral("5 1/2 Evening & more");

    [[nodiscard]] bool start();
    void end();

    // The window against the model
    [[nodiscard]] bool agrees();
    void picture(const char* name);

    // What asks: a dialog or a menu
    [[nodiscard]] bool isAsking() const;
    /// Does what opens it, then what is done in it, which must end it.
    [[nodiscard]] bool visit(const std::function<bool()>& opening, const std::function<void()>& inside);
    [[nodiscard]] std::function<bool()> clickOn(QPoint place);
    [[nodiscard]] std::function<bool()> doubleClickOn(QPoint place);
    [[nodiscard]] std::function<bool()> keyOf(const char* name);
    [[nodiscard]] QStringList fields() const;
    [[nodiscard]] QString fieldText(const char* name) const;
    [[nodiscard]] QPoint placeIn(const char* field) const;
    [[nodiscard]] bool chooseCategory(const QString& name);
    [[nodiscard]] bool chooseInMenu(const QString& text);

    // Rows
    [[nodiscard]] LibraryView& view() const;
    [[nodiscard]] CategoryListWidget& categories() const { return *view().categories; }
    [[nodiscard]] ScaleListWidget& scales() const { return *view().scales; }
    [[nodiscard]] Qt::CursorShape dragCursor() const { return scales().viewport()->cursor().shape(); }
    /// Turns the wheel until the row is seen; its place.
    [[nodiscard]] QPoint reach(const QListWidget& list, int row);
    /// Below the last row of a short list.
    [[nodiscard]] QPoint footOfScales() const;
    [[nodiscard]] QPoint categoryPlace(const QString& name);
    [[nodiscard]] QPoint scalePlace(int row) { return reach(scales(), row); }
    [[nodiscard]] bool pressCategory(const QString& name);
    [[nodiscard]] bool pressScale(int row);
    [[nodiscard]] bool startDrag(QPoint from, QPoint to);
    /// Press, way and release; `held` is a key that is held from the end of the way on.
    [[nodiscard]] bool drag(QPoint from, QPoint to, const char* held = nullptr);

    RealWindow window;
    std::unique_ptr<BrowserHand> hand;
    BrowserModel model;
    QString disagreement;

private:
    /// What remains open would hang the tour.
    void endQuestion();

    bool inDialog = false;
    int pictures = 0;
};
