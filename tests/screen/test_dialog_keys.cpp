// The computer keyboard in a dialog: answers, popups, Tab, and the space that the window takes elsewhere.

#include "DialogFixture.h"
#include "screen/AddWindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTextEdit>

namespace {

enum Outcome { accepted, rejected, nothing };

QString textOf(const QWidget* field)
{
    if (const auto* text = qobject_cast<const QTextEdit*>(field))
        return text->toPlainText();
    return static_cast<const QLineEdit*>(field)->text();
}

/// Counts the key presses that reach a widget.
class KeyWatch : public QObject
{
public:
    explicit KeyWatch(QObject* watched) { watched->installEventFilter(this); }
    int presses = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        presses += event->type() == QEvent::KeyPress;
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(Outcome)

class TestDialogKeys : public DialogFixture
{
    Q_OBJECT

private slots:
    // Answers
    void answers_data();
    void answers();
    void otherKeysStayInside_data();
    void otherKeysStayInside();

    // Popups
    void escapeClosesTheListOnly();
    void listIsChosenFrom_data();
    void listIsChosenFrom();
    void escapeClosesAContextMenuOnly();
    void contextMenuIsChosenFrom_data();
    void contextMenuIsChosenFrom();

    // Tab
    void tabGoesThroughTheFields_data();
    void tabGoesThroughTheFields();
    void tabPassesOverWhatCannotBeReached();
    void tabStaysOnAnAlert();

    // Text
    void spaceIsTyped_data();
    void spaceIsTyped();
    void spaceReplacesTheSelection_data();
    void spaceReplacesTheSelection();
    void readOnlyFieldTakesNoSpace_data();
    void readOnlyFieldTakesNoSpace();
    void modifiedSpaces_data();
    void modifiedSpaces();
    void shiftReturnBeginsALine();

private:
    std::unique_ptr<AddWindow> adding() const;
    static void openList(AbstractDialog& dialog);
    static QLineEdit* openMenu(AbstractDialog& dialog);
    void addTextFields() const;
};

std::unique_ptr<AddWindow> TestDialogKeys::adding() const
{
    auto dialog = make(QStringLiteral("add"));
    return std::unique_ptr<AddWindow>(static_cast<AddWindow*>(dialog.release()));
}

void TestDialogKeys::answers_data()
{
    struct Case
    {
        const char* name;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        Outcome outcome;
    };
    const Case cases[] = {{"Return", Qt::Key_Return, {}, accepted},
                          {"Enter", Qt::Key_Enter, {}, accepted},
                          {"Enter of the keypad", Qt::Key_Enter, Qt::KeypadModifier, accepted},
                          {"Shift+Return", Qt::Key_Return, Qt::ShiftModifier, nothing},
                          {"Ctrl+Return", Qt::Key_Return, Qt::ControlModifier, nothing},
                          {"Alt+Return", Qt::Key_Return, Qt::AltModifier, nothing},
                          {"Meta+Return", Qt::Key_Return, Qt::MetaModifier, nothing},
                          {"Shift+Enter", Qt::Key_Enter, Qt::KeypadModifier | Qt::ShiftModifier, nothing},
                          {"Escape", Qt::Key_Escape, {}, rejected},
                          {"Space", Qt::Key_Space, {}, nothing},
                          {"Tab", Qt::Key_Tab, {}, nothing},
                          {"a letter", Qt::Key_A, {}, nothing}};
    QTest::addColumn<QString>("kind");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<Outcome>("outcome");
    for (const char* kind : {"alert", "change", "add", "edit"})
        for (const Case& row : cases)
            QTest::addRow("%s, %s", kind, row.name)
                << QString::fromLatin1(kind) << row.key << row.modifiers << row.outcome;
}

void TestDialogKeys::answers()
{
    QFETCH(QString, kind);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(Outcome, outcome);
    const auto dialog = make(kind);
    const auto answer = [&] {
        press(key, modifiers);
        QCOMPARE(dialog->isVisible(), outcome == nothing);
    };
    QCOMPARE(run(*dialog, answer), outcome == accepted ? 1 : 0);
    QVERIFY(window->isVisible()); // the key did not reach it
    QVERIFY(!power()->isSwitchOn());
}

void TestDialogKeys::otherKeysStayInside_data()
{
    addKinds();
}

void TestDialogKeys::otherKeysStayInside()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    const KeyWatch watch(window.get());
    run(*dialog, [] {
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_F5})
            press(key);
    });
    QCOMPARE(watch.presses, 0);
    press(Qt::Key_F5);
    QVERIFY(watch.presses > 0);
}

void TestDialogKeys::openList(AbstractDialog& dialog)
{
    auto* box = dialog.findChild<QComboBox*>();
    box->setFocus();
    box->showPopup();
    QTRY_VERIFY(QApplication::activePopupWidget());
}

void TestDialogKeys::escapeClosesTheListOnly()
{
    const auto dialog = adding();
    run(*dialog, [&] {
        openList(*dialog);
        press(Qt::Key_Down);
        press(Qt::Key_Escape);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->category(), QStringLiteral("First"));
        press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    });
}

void TestDialogKeys::listIsChosenFrom_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void TestDialogKeys::listIsChosenFrom()
{
    QFETCH(Qt::Key, key);
    const auto dialog = adding();
    const auto choose = [&] {
        openList(*dialog);
        press(Qt::Key_Down);
        press(key);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->category(), QStringLiteral("Second"));
        press(key);
        QVERIFY(!dialog->isVisible());
    };
    QCOMPARE(run(*dialog, choose), 1);
}

QLineEdit* TestDialogKeys::openMenu(AbstractDialog& dialog)
{
    auto* title = dialog.findChild<QLineEdit*>(QStringLiteral("title"));
    title->deselect();
    QContextMenuEvent ask(QContextMenuEvent::Keyboard, QPoint(5, 5), title->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(title, &ask);
    [] { QTRY_VERIFY(QApplication::activePopupWidget()); }();
    return title;
}

void TestDialogKeys::escapeClosesAContextMenuOnly()
{
    const auto dialog = adding();
    run(*dialog, [&] {
        openMenu(*dialog);
        press(Qt::Key_Escape);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(dialog->isVisible());
        press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    });
}

void TestDialogKeys::contextMenuIsChosenFrom_data()
{
    listIsChosenFrom_data();
}

void TestDialogKeys::contextMenuIsChosenFrom()
{
    QFETCH(Qt::Key, key);
    const auto dialog = adding();
    const auto choose = [&] {
        const QLineEdit* title = openMenu(*dialog);
        QVERIFY(!title->hasSelectedText());
        press(Qt::Key_Up); // the last one: select all
        press(key);
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QCOMPARE(title->selectedText(), QStringLiteral("Mine"));
        QVERIFY(dialog->isVisible());
        press(key);
        QVERIFY(!dialog->isVisible());
    };
    QCOMPARE(run(*dialog, choose), 1);
}

void TestDialogKeys::tabGoesThroughTheFields_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("order");
    const QStringList all{QStringLiteral("title"), QStringLiteral("abbr1"), QStringLiteral("abbr2"),
                          QStringLiteral("category"), QStringLiteral("description")};
    QStringList some = all;
    some.removeAt(3);
    QTest::newRow("add") << QStringLiteral("add") << all;
    QTest::newRow("edit") << QStringLiteral("edit") << some;
    QTest::newRow("change") << QStringLiteral("change") << QStringList(QStringLiteral("name"));
}

void TestDialogKeys::tabGoesThroughTheFields()
{
    QFETCH(QString, kind);
    QFETCH(QStringList, order);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        const int count = order.size();
        for (int i = 0; i <= count; ++i) {
            QCOMPARE(QApplication::focusWidget()->objectName(), order.at(i % count));
            press(Qt::Key_Tab);
        }
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        for (int i = 2 * count; i >= 0; --i) {
            QCOMPARE(QApplication::focusWidget()->objectName(), order.at(i % count));
            press(Qt::Key_Backtab, Qt::ShiftModifier);
        }
        dialog->setFocus(); // from beside the fields
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), order.first());
        dialog->setFocus();
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), order.last());
    });
}

void TestDialogKeys::tabPassesOverWhatCannotBeReached()
{
    const auto dialog = adding();
    dialog->findChild<QWidget*>(QStringLiteral("abbr1"))->setEnabled(false);
    dialog->findChild<QWidget*>(QStringLiteral("abbr2"))->hide();
    run(*dialog, [&] {
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("category"));
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("title"));
    });
}

void TestDialogKeys::tabStaysOnAnAlert()
{
    const auto dialog = make(QStringLiteral("alert"));
    run(*dialog, [&] {
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
            press(key);
            QCOMPARE(QApplication::focusWidget(), dialog.get());
        }
    });
}

void TestDialogKeys::addTextFields() const
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("field");
    for (const char* kind : {"add", "edit"})
        for (const char* field : {"title", "description"})
            QTest::addRow("%s %s", kind, field) << QString::fromLatin1(kind) << QString::fromLatin1(field);
    QTest::newRow("change") << QStringLiteral("change") << QStringLiteral("name");
}

void TestDialogKeys::spaceIsTyped_data()
{
    addTextFields();
}

void TestDialogKeys::spaceIsTyped()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        auto* edit = dialog->findChild<QWidget*>(field);
        edit->setFocus();
        press(Qt::Key_A, Qt::ControlModifier); // all
        type("ab c  d");
        QCOMPARE(textOf(edit), QStringLiteral("ab c  d"));
        QVERIFY(!power()->isSwitchOn());
    });
}

void TestDialogKeys::spaceReplacesTheSelection_data()
{
    addTextFields();
}

void TestDialogKeys::spaceReplacesTheSelection()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        auto* edit = dialog->findChild<QWidget*>(field);
        edit->setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        type("abc");
        press(Qt::Key_Left, Qt::ShiftModifier);
        press(Qt::Key_Left, Qt::ShiftModifier);
        press(Qt::Key_Space);
        type("d");
        QCOMPARE(textOf(edit), QStringLiteral("a d"));
    });
}

void TestDialogKeys::readOnlyFieldTakesNoSpace_data()
{
    addTextFields();
}

void TestDialogKeys::readOnlyFieldTakesNoSpace()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        auto* edit = dialog->findChild<QWidget*>(field);
        edit->setFocus();
        edit->setProperty("readOnly", true);
        const QString before = textOf(edit);
        press(Qt::Key_Space);
        QCOMPARE(textOf(edit), before);
        QVERIFY(!power()->isSwitchOn());
    });
}

void TestDialogKeys::modifiedSpaces_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("typed");
    using Modifiers = Qt::KeyboardModifiers;
    QTest::newRow("Shift") << Modifiers(Qt::ShiftModifier) << true;
    QTest::newRow("Ctrl") << Modifiers(Qt::ControlModifier) << false;
    QTest::newRow("Alt") << Modifiers(Qt::AltModifier) << false;
    QTest::newRow("Meta") << Modifiers(Qt::MetaModifier) << false;
}

void TestDialogKeys::modifiedSpaces()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, typed);
    const auto dialog = adding();
    run(*dialog, [&] {
        press(Qt::Key_End);
        press(Qt::Key_Space, modifiers);
        QCOMPARE(dialog->name(), typed ? QStringLiteral("Mine ") : QStringLiteral("Mine"));
        QVERIFY(!power()->isSwitchOn());
    });
}

void TestDialogKeys::shiftReturnBeginsALine()
{
    const auto dialog = adding();
    const auto write = [&] {
        dialog->findChild<QTextEdit*>()->setFocus();
        type("one");
        press(Qt::Key_Return, Qt::ShiftModifier);
        type("two");
        QCOMPARE(dialog->description(), QStringLiteral("one\ntwo"));
        press(Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
    };
    QCOMPARE(run(*dialog, write), 1);
    QCOMPARE(dialog->description(), QStringLiteral("one\ntwo"));
}

QTEST_MAIN(TestDialogKeys)
#include "test_dialog_keys.moc"
