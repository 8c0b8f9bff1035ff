// The hands that the tests of the library lay on it.

#include "LibraryFixture.h"

#include "screen/AbstractDialog.h"
#include "screen/ChangeDialog.h"

#include <QGraphicsView>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>

#include <algorithm>

void LibraryFixture::clickButtonOf(const QWidget& dialog, bool accepting)
{
    dialog.findChild<QPushButton*>(accepting ? QStringLiteral("okButton") : QStringLiteral("cancelButton"))
        ->click();
}

void LibraryFixture::giveName(const QString& text, bool accepting)
{
    whenOpen<ChangeDialog>([text, accepting](ChangeDialog& dialog) {
        dialog.findChild<QLineEdit*>(QStringLiteral("name"))->setText(text);
        clickButtonOf(dialog, accepting);
    });
}

void LibraryFixture::whenMenu(const std::function<void(QMenu&)>& look)
{
    auto* poll = new QTimer(window.get());
    connect(poll, &QTimer::timeout, this, [this, poll, look] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        poll->stop();
        poll->deleteLater();
        ++seen;
        look(*menu);
        menu->close();
    });
    poll->start(0);
}

void LibraryFixture::choose(const QString& category)
{
    whenMenu([category](QMenu& menu) {
        for (QAction* action : menu.actions())
            if (action->property("category").toString() == category && action->isEnabled())
                return QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                                         menu.actionGeometry(action).center());
    });
}

QString LibraryFixture::whatOpens(const Acts& acts)
{
    QString opened;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            opened = QString::fromLatin1(popup->metaObject()->className());
            popup->close();
        }
        for (auto* dialog : window->findChildren<AbstractDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (dialog->isHidden())
                continue;
            const QWidget* focus = window->focusWidget();
            const bool inside = focus && dialog->isAncestorOf(focus);
            opened = QString::fromLatin1(dialog->metaObject()->className());
            if (inside && !focus->objectName().isEmpty())
                opened += QLatin1Char(' ') + focus->objectName();
            dialog->reject();
        }
    });
    poll.start(0);
    acts();
    return opened;
}

void LibraryFixture::pointer(QEvent::Type type, QPointF place, Qt::MouseButton button,
                             Qt::MouseButtons held) const
{
    const QGraphicsView* stage = window->ui.centerGraphicsView;
    const QPoint at = stage->mapFromScene(place);
    QMouseEvent event(type, at, stage->viewport()->mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(stage->viewport(), &event);
}

void LibraryFixture::pressOn(LibraryButton::Code code, Qt::MouseButton which) const
{
    pointer(QEvent::MouseButtonPress, button(code).sceneBoundingRect().center(), which, which);
}

void LibraryFixture::releaseOn(LibraryButton::Code code, Qt::MouseButton which) const
{
    pointer(QEvent::MouseButtonRelease, button(code).sceneBoundingRect().center(), which, Qt::NoButton);
}

QPoint LibraryFixture::placeOfRow(const QListWidget& list, int row) const
{
    return list.viewport()->mapTo(window.get(), list.visualItemRect(list.item(row)).center());
}

void LibraryFixture::press(QPoint place, Qt::MouseButton which) const
{
    QTest::mousePress(window->windowHandle(), which, Qt::NoModifier, place);
}

void LibraryFixture::move(QPoint place, Qt::KeyboardModifiers modifiers) const
{
    QTest::mouseEvent(QTest::MouseMove, window->windowHandle(), Qt::NoButton, modifiers, place);
}

void LibraryFixture::release(QPoint place, Qt::MouseButton which, Qt::KeyboardModifiers modifiers) const
{
    QTest::mouseRelease(window->windowHandle(), which, modifiers, place);
}

void LibraryFixture::clickRow(const QListWidget& list, int row) const
{
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualItemRect(list.item(row)).center());
}

void LibraryFixture::play(const QString& word) const
{
    setScale(word);
    presets().storeScale(scale().switchOn, word);
    window->checkScaleMatches(true);
}

void LibraryFixture::sendNote(int note, int velocity) const
{
    std::vector<unsigned char> message{0x90, static_cast<unsigned char>(note),
                                       static_cast<unsigned char>(velocity)};
    window->inSigReceived(0, &message, nullptr);
}

QStringList LibraryFixture::titles(const QString& name) const
{
    QStringList list;
    for (const QString& word : words(name))
        list << titleOf(word);
    return list;
}

QString LibraryFixture::titleOf(const QString& word) const
{
    scale_data record;
    library().getScaleData(word, record, DatabaseLibrary::AnyRole);
    return record.title;
}

void LibraryFixture::showCategory(int index) const
{
    screen().categoryListItemClicked(categoryList().item(index));
}

void LibraryFixture::addWord(const QString& word, const QString& title, const QString& to) const
{
    library().setScaleData(word, {word, QStringLiteral("a"), QStringLiteral("b"), title, QString()},
                           DatabaseLibrary::LibraryRole);
    library().appendScaleToCategory(to, word);
    screen().refreshBrowser();
}

QTimer& LibraryFixture::browserTimer() const
{
    const auto timers = screen().findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    return **std::find_if(timers.begin(), timers.end(), [](const QTimer* t) { return t->isSingleShot(); });
}

void LibraryFixture::openPlaying()
{
    openWindow();
    show();
    openLibrary();
    play(ionian);
    settle();
}

void LibraryFixture::settle() const
{
    QTRY_VERIFY(!browserTimer().isActive());
}

QStringList LibraryFixture::storedNames(const QString& word) const
{
    scale_data record;
    library().getScaleData(word, record, DatabaseLibrary::AnyRole);
    return {record.abbr1, record.abbr2, record.title, record.libBody};
}

QStringList LibraryFixture::allWords() const
{
    QStringList lines;
    for (const QString& name : library().categories())
        lines << name + QLatin1Char(':') + QStringList(words(name)).join(',');
    return lines;
}

QList<QStringList> LibraryFixture::wholeLibrary() const
{
    QList<QStringList> lines{QStringList(library().categories().toList())};
    for (const QString& name : library().categories()) {
        lines << QStringList(words(name));
        for (const QString& word : words(name))
            lines << storedNames(word);
    }
    return lines << QStringList(library().customScales());
}
