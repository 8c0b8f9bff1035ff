#include "LibraryTour.h"

#include "BrowserState.h"
#include "screen/CenterScreen.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QMenu>
#include <QTimer>

#include <algorithm>

using namespace browser_places;

namespace {

/// The first lines that differ, from a little before that on; "" if the texts agree.
QString difference(const QStringList& actual, const QStringList& expected)
{
    for (int i = 0; i < qMax(actual.size(), expected.size()); ++i) {
        const QString is = actual.value(i), wanted = expected.value(i);
        const auto differ = std::mismatch(is.begin(), is.end(), wanted.begin(), wanted.end());
        const int from = qMax(0, static_cast<int>(differ.first - is.begin()) - 40);
        if (is != wanted)
            return QStringLiteral("line %1\n  is:        %2\n  should be: %3")
                .arg(QString::number(i), is.mid(from, 200), wanted.mid(from, 200));
    }
    return {};
}

} // namespace

bool LibraryTour::start()
{
    const QLocale countsByValue(QLocale::English, QLocale::UnitedStates);
    QLocale::setDefault(countsByValue); // "9" stands before "10"
    model = BrowserModel();
    const bool opened =
        QDir().mkpath(QStringLiteral(SORVANE_SCREENSHOTS)) && BrowserHand::prepareKeyboard() && window.open();
    hand = std::make_unique<BrowserHand>();
    return opened;
}

void LibraryTour::end()
{
    hand.reset();
    window.close();
}

bool LibraryTour::agrees()
{
    const auto expected = [this] {
        BrowserSnapshot snapshot = model.snapshot();
        snapshot.dialog = inDialog;
        return snapshot.lines();
    };
    const auto compare = [&] {
        disagreement = difference(snapshotOf(*window, model.knownWords()).lines(), expected());
        return !isBrowserBehind(*window) && disagreement.isEmpty();
    };
    return QTest::qWaitFor(compare, 3000);
}

void LibraryTour::picture(const char* name)
{
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(QStringLiteral(SORVANE_SCREENSHOTS))
                             .arg(++pictures, 2, 10, QLatin1Char('0'))
                             .arg(QLatin1String(name));
    QVERIFY2(window.picture().save(file), qPrintable(file));
}

bool LibraryTour::isAsking() const
{
    return window->dialogOpen || QApplication::activePopupWidget();
}

bool LibraryTour::visit(const std::function<bool()>& opening, const std::function<void()>& inside)
{
    bool met = false, left = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        if (met || !isAsking() || !hand->isIdle())
            return;
        met = true;
        watch.stop();
        inDialog = window->dialogOpen;
        inside();
        left = !isAsking();
        inDialog = false;
        endQuestion();
    });
    watch.start(1);
    const bool acted = opening();
    return acted && met && left && !QTest::currentTestFailed();
}

void LibraryTour::endQuestion()
{
    if (QWidget* dialog = shownDialog(*window))
        dialog->hide();
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

std::function<bool()> LibraryTour::clickOn(QPoint place)
{
    return [this, place] { return hand->click(place); };
}

std::function<bool()> LibraryTour::doubleClickOn(QPoint place)
{
    return [this, place] { return hand->doubleClick(place); };
}

std::function<bool()> LibraryTour::keyOf(const char* name)
{
    return [this, name] { return hand->key(QLatin1String(name)); };
}

QStringList LibraryTour::fields() const
{
    const QWidget* dialog = shownDialog(*window);
    return dialog ? fieldsOf(*dialog) : QStringList();
}

QString LibraryTour::fieldText(const char* name) const
{
    const QString start = QLatin1String(name) + QStringLiteral(": ");
    for (const QString& line : fields())
        if (line.startsWith(start))
            return line.mid(start.size());
    return {};
}

QPoint LibraryTour::placeIn(const char* field) const
{
    const QWidget* dialog = shownDialog(*window);
    const auto* found = dialog ? dialog->findChild<QWidget*>(QLatin1String(field)) : nullptr;
    return found ? found->mapToGlobal(found->rect().center()) : QPoint();
}

// Right after its opening the list takes no click for a choice.
bool LibraryTour::chooseCategory(const QString& name)
{
    QWidget* dialog = shownDialog(*window);
    auto* box = dialog ? dialog->findChild<QComboBox*>(QStringLiteral("category")) : nullptr;
    if (!box || !hand->click(placeIn("category")) || !QApplication::activePopupWidget())
        return false;
    const QModelIndex index = box->model()->index(box->findText(name), 0);
    box->view()->scrollTo(index);
    for (int attempt = 0; attempt < 20 && QApplication::activePopupWidget(); ++attempt)
        if (!hand->click(box->view()->viewport()->mapToGlobal(box->view()->visualRect(index).center())))
            return false;
    return box->currentText() == name;
}

bool LibraryTour::chooseInMenu(const QString& text)
{
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return false;
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions)
        if (action->text() == QString(text).replace(QLatin1Char('&'), QLatin1String("&&")))
            return hand->click(menu->mapToGlobal(menu->actionGeometry(action).center()));
    return false;
}

LibraryView& LibraryTour::view() const
{
    return *window->centerScreen->libraryView();
}

QPoint LibraryTour::reach(const QListWidget& list, int row)
{
    const QWidget& pane = *list.viewport();
    const auto place = [&] { return list.visualItemRect(list.item(row)); };
    const auto isSeen = [&] { return place().top() >= 0 && place().bottom() < pane.height(); };
    for (int turn = 0; turn < 20 && !isSeen(); ++turn)
        if (!hand->turnWheel(pane.mapToGlobal(pane.rect().center()), place().top() < 0 ? -1 : 1))
            break;
    return pane.mapToGlobal(place().center());
}

QPoint LibraryTour::footOfScales() const
{
    const QWidget& pane = *scales().viewport();
    return pane.mapToGlobal(pane.rect().bottomLeft()) + QPoint(40, -4);
}

QPoint LibraryTour::categoryPlace(const QString& name)
{
    return reach(categories(), model.categoryNames().indexOf(name));
}

bool LibraryTour::pressCategory(const QString& name)
{
    const QPoint place = categoryPlace(name);
    model.pressCategory(name);
    return hand->click(place);
}

bool LibraryTour::pressScale(int row)
{
    const QPoint place = scalePlace(row);
    model.pressScale(row);
    return hand->click(place);
}

bool LibraryTour::startDrag(QPoint from, QPoint to)
{
    return hand->move(from) && hand->press() && hand->move(from + QPoint(-6, 2)) &&
           hand->move((from + to) / 2) && hand->move(to);
}

bool LibraryTour::drag(QPoint from, QPoint to, const char* held)
{
    if (!startDrag(from, to))
        return false;
    if (held && !hand->holdKey(QLatin1String(held)))
        return false;
    const bool released = hand->release();
    return (!held || hand->letKeyGo(QLatin1String(held))) && released;
}
