// The two short names in the dialogs: what may be typed, what a wrong text does, and what code may set.

#include "DialogFixture.h"
#include "screen/AddWindow.h"
#include "screen/CenterScreen.h"
#include "screen/EditWindow.h"

#include <QLabel>
#include <QLineEdit>

namespace {

const QString goodStyle = QStringLiteral("QLineEdit { border-width: 0px; color: black; }");
const QString badStyle = QStringLiteral("QLineEdit { border-width: 2px; border-color: red; color: red; "
                                        "selection-background-color: rgb(255, 187, 184); }");
const QString warning =
    QStringLiteral("max 5-7 chars allowed(width-dependant), no SPACE, \"A-Z\",\"a-z\" and "
                   "special chars only \"*?()+/-#0123456789\"");
const QString noWarning = QStringLiteral(" ");

} // namespace

class TestAbbreviations : public DialogFixture
{
    Q_OBJECT

private slots:
    // The rule
    void rule_data();
    void rule();
    void longestBeginning_data();
    void longestBeginning();

    // Typing
    void goodTextIsTaken_data();
    void goodTextIsTaken();
    void wrongSignIsTakenBack_data();
    void wrongSignIsTakenBack();
    void wideNameEndsSooner_data();
    void wideNameEndsSooner();
    void pasteIsTakenBack();
    void cursorStaysWhereItWas();
    void warningWaitsForBothFields();
    void goodTextBringsTheGoodStyle_data();
    void goodTextBringsTheGoodStyle();

    // Code
    void setFromCodeIsNoChange_data();
    void setFromCodeIsNoChange();
    void setFromCodeIsCut_data();
    void setFromCodeIsCut();
    void editedNamesStayAsTheyAre();
    void aNameThatIsTooWideCanBeMadeShorter();
    void wrongSignOverANameThatIsTooWideIsTakenBack_data();
    void wrongSignOverANameThatIsTooWideIsTakenBack();
    void setFromCodeIsTheLastGoodText();
    void otherSendersAreNotHeard();

    // Acceptance
    void errorRefusesAdding();
    void errorDoesNotRefuseEditing();

private:
    static void addFields();
    static QLineEdit* edit(const AbstractDialog& dialog, const QString& name)
    {
        return dialog.findChild<QLineEdit*>(name);
    }
    static QLineEdit* first(const AbstractDialog& dialog) { return edit(dialog, QStringLiteral("abbr1")); }
    static QLineEdit* second(const AbstractDialog& dialog) { return edit(dialog, QStringLiteral("abbr2")); }
    static QLabel* message(const AbstractDialog& dialog)
    {
        return dialog.findChild<QLabel*>(QStringLiteral("message"));
    }
    /// Replaces what stands in the edit, by hand.
    static void write(QLineEdit* edit, const char* text)
    {
        edit->setFocus();
        edit->selectAll();
        type(text);
    }
};

void TestAbbreviations::addFields()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("field");
    for (const char* kind : {"add", "edit"})
        for (const char* field : {"abbr1", "abbr2"})
            QTest::addRow("%s %s", kind, field) << QString::fromLatin1(kind) << QString::fromLatin1(field);
}

void TestAbbreviations::rule_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("good");
    const auto row = [](const char* name, bool good) {
        QTest::newRow(qPrintable(QStringLiteral("'") + QString::fromUtf8(name) + QStringLiteral("'")))
            << QString::fromUtf8(name) << good;
    };
    for (const char* name : {"", "User", "1", "iiiiiii", "lllllll", "A.*?()", "+/-#", "0123", "aZ"})
        row(name, true);
    for (const char* name : {"iiiiiiii", "WWWWWWW", "mmmmmmm", "a b", " ", "ä", "a_b", "a,b", "a\n", "♯"})
        row(name, false);
}

void TestAbbreviations::rule()
{
    QFETCH(QString, name);
    QFETCH(bool, good);
    QCOMPARE(window->centerScreen->canBeRightLibraryName(name), good);
}

void TestAbbreviations::longestBeginning_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("beginning");
    const auto row = [](const char* text, const char* beginning) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(beginning);
    };
    row("", "");
    row("User", "User");
    row("iiiiiiiii", "iiiiiii");
    row("ab cd", "ab");
    row(" ab", "");
    row("äb", "");
    row("ab♯", "ab");
    row("WWWWWWW", "WWW"); // 9.4 pixels each
    QTest::newRow("very long") << QString(100000, QLatin1Char('i')) << QStringLiteral("iiiiiii");
}

void TestAbbreviations::longestBeginning()
{
    QFETCH(QString, text);
    QFETCH(QString, beginning);
    QCOMPARE(AddWindow::findRightAbbrText(text), beginning);
}

void TestAbbreviations::goodTextIsTaken_data()
{
    addFields();
}

void TestAbbreviations::goodTextIsTaken()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        QLineEdit* name = edit(*dialog, field);
        for (const char* text : {"iiiiiii", "Ab+/-", "*?()#", "1.0"}) {
            write(name, text);
            QCOMPARE(name->text(), QString::fromLatin1(text));
            QCOMPARE(name->styleSheet(), goodStyle);
            QCOMPARE(message(*dialog)->text(), noWarning);
        }
    });
}

void TestAbbreviations::wrongSignIsTakenBack_data()
{
    addFields();
}

void TestAbbreviations::wrongSignIsTakenBack()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        QLineEdit* name = edit(*dialog, field);
        message(*dialog)->hide();
        for (const char wrong : {' ', '_', '!', ','}) {
            write(name, "abc");
            QCOMPARE(name->styleSheet(), goodStyle);
            QTest::keyClick(name, wrong);
            QCOMPARE(name->text(), QStringLiteral("abc"));
            QCOMPARE(name->styleSheet(), badStyle);
            QCOMPARE(message(*dialog)->text(), warning);
            QVERIFY(message(*dialog)->isVisible());
            QVERIFY(message(*dialog)->height() >=
                    message(*dialog)->heightForWidth(message(*dialog)->width()));
        }
        type("d");
        QCOMPARE(name->text(), QStringLiteral("abcd"));
        QCOMPARE(name->styleSheet(), goodStyle);
        QCOMPARE(message(*dialog)->text(), noWarning);
    });
}

void TestAbbreviations::wideNameEndsSooner_data()
{
    addFields();
}

void TestAbbreviations::wideNameEndsSooner()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        QLineEdit* name = edit(*dialog, field);
        write(name, "WWWWWWW");
        QCOMPARE(name->text(), QStringLiteral("WWW"));
        QCOMPARE(name->styleSheet(), badStyle);
        write(name, "iiiiiiii"); // the eighth is one too many
        QCOMPARE(name->text(), QStringLiteral("iiiiiii"));
        QCOMPARE(name->styleSheet(), badStyle);
    });
}

void TestAbbreviations::pasteIsTakenBack()
{
    const auto dialog = make(QStringLiteral("add"));
    run(*dialog, [&] {
        QLineEdit* name = first(*dialog);
        write(name, "abc");
        name->setSelection(1, 1);
        name->insert(QStringLiteral("two words"));
        QCOMPARE(name->text(), QStringLiteral("abc"));
        QCOMPARE(name->styleSheet(), badStyle);
    });
}

void TestAbbreviations::cursorStaysWhereItWas()
{
    const auto dialog = make(QStringLiteral("add"));
    run(*dialog, [&] {
        QLineEdit* name = first(*dialog);
        write(name, "abcd");
        for (int place = 0; place <= 4; ++place) {
            name->setCursorPosition(place);
            press(Qt::Key_Space);
            QCOMPARE(name->text(), QStringLiteral("abcd"));
            QCOMPARE(name->cursorPosition(), place);
        }
        for (int first = 0; first < 4; ++first) { // less text than before, and still wrong
            name->setSelection(first, 4 - first);
            press(Qt::Key_Space);
            QCOMPARE(name->text(), QStringLiteral("abcd"));
            QCOMPARE(name->cursorPosition(), 4);
        }
    });
}

void TestAbbreviations::warningWaitsForBothFields()
{
    const auto dialog = make(QStringLiteral("add"));
    run(*dialog, [&] {
        write(first(*dialog), "a ");
        write(second(*dialog), "b ");
        QCOMPARE(message(*dialog)->text(), warning);
        write(first(*dialog), "c");
        QCOMPARE(first(*dialog)->styleSheet(), goodStyle);
        QCOMPARE(message(*dialog)->text(), warning);
        write(second(*dialog), "d");
        QCOMPARE(message(*dialog)->text(), noWarning);
        write(first(*dialog), "a ");
        write(second(*dialog), "b");
        QCOMPARE(message(*dialog)->text(), warning);
        write(first(*dialog), "a");
        QCOMPARE(message(*dialog)->text(), noWarning);
    });
}

void TestAbbreviations::goodTextBringsTheGoodStyle_data()
{
    addFields();
}

// Also the empty text is good, though it cannot be accepted.
void TestAbbreviations::goodTextBringsTheGoodStyle()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        QLineEdit* name = edit(*dialog, field);
        write(name, "a ");
        name->selectAll();
        press(Qt::Key_Delete);
        QCOMPARE(name->text(), QString());
        QCOMPARE(name->styleSheet(), goodStyle);
        QCOMPARE(message(*dialog)->text(), noWarning);
    });
}

void TestAbbreviations::setFromCodeIsNoChange_data()
{
    addFields();
}

void TestAbbreviations::setFromCodeIsNoChange()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        QLineEdit* name = edit(*dialog, field);
        name->setText(QStringLiteral("not a short name"));
        QCOMPARE(name->text(), QStringLiteral("not a short name"));
        QCOMPARE(name->styleSheet(), QString());
        QCOMPARE(message(*dialog)->text(), noWarning);
    });
}

void TestAbbreviations::setFromCodeIsCut_data()
{
    longestBeginning_data();
}

void TestAbbreviations::setFromCodeIsCut()
{
    QFETCH(QString, text);
    QFETCH(QString, beginning);
    const auto expect = [&](auto&& dialog) {
        dialog.setAbbr1(text);
        QCOMPARE(dialog.abbr1(), beginning);
        QCOMPARE(dialog.abbr2(), QStringLiteral("1"));
        dialog.setAbbr2(text);
        QCOMPARE(dialog.abbr2(), beginning);
    };
    expect(AddWindow(1, window.get()));
}

// The factory has names that are wider than the user's may be.
void TestAbbreviations::editedNamesStayAsTheyAre()
{
    EditWindow dialog(1, window.get());
    dialog.setAbbr1(QStringLiteral("Bep.Minor"));
    dialog.setAbbr2(QStringLiteral("a b"));
    QCOMPARE(dialog.abbr1(), QStringLiteral("Bep.Minor"));
    QCOMPARE(dialog.abbr2(), QStringLiteral("a b"));
}

void TestAbbreviations::aNameThatIsTooWideCanBeMadeShorter()
{
    EditWindow dialog(2, window.get());
    dialog.setAbbr1(QStringLiteral("Bep.Minor"));
    run(dialog, [&] {
        QLineEdit* name = first(dialog);
        name->setFocus();
        name->end(false);
        for (int left = 8; left >= 0; --left) {
            press(Qt::Key_Backspace);
            QCOMPARE(dialog.abbr1(), QStringLiteral("Bep.Minor").left(left));
        }
        type("WWWWWW");
        QCOMPARE(dialog.abbr1(), QStringLiteral("WWW"));
    });
}

// Shortening a name that is too wide was once let pass whatever it was typed over with.
void TestAbbreviations::wrongSignOverANameThatIsTooWideIsTakenBack_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("alone") << QStringLiteral("_");
    QTest::newRow("after its beginning") << QStringLiteral("B_");
    QTest::newRow("space") << QStringLiteral(" ");
}

void TestAbbreviations::wrongSignOverANameThatIsTooWideIsTakenBack()
{
    QFETCH(QString, typed);
    EditWindow dialog(2, window.get());
    dialog.setAbbr1(QStringLiteral("Bep.Minor"));
    run(dialog, [&] {
        QLineEdit* name = first(dialog);
        name->setFocus();
        name->selectAll();
        name->insert(typed); // in one edit
        QCOMPARE(dialog.abbr1(), QStringLiteral("Bep.Minor"));
        QVERIFY(message(dialog)->text() != noWarning);
    });
}

void TestAbbreviations::setFromCodeIsTheLastGoodText()
{
    AddWindow dialog(1, window.get());
    run(dialog, [&] {
        first(dialog)->setFocus();
        press(Qt::Key_Space);
        QCOMPARE(dialog.abbr1(), QStringLiteral("User"));
        second(dialog)->setFocus();
        press(Qt::Key_Space);
        QCOMPARE(dialog.abbr2(), QStringLiteral("1"));
        dialog.setAbbr1(QStringLiteral("ab cd"));
        dialog.setAbbr2(QStringLiteral("xy"));
        first(dialog)->setFocus();
        press(Qt::Key_Space);
        QCOMPARE(dialog.abbr1(), QStringLiteral("ab"));
        second(dialog)->setFocus();
        press(Qt::Key_Space);
        QCOMPARE(dialog.abbr2(), QStringLiteral("xy"));
    });
}

void TestAbbreviations::otherSendersAreNotHeard()
{
    const auto dialog = make(QStringLiteral("add"));
    QObject* fields = first(*dialog)->parent();
    for (const char* slot : {"abbr1TextChange", "abbr2TextChange"})
        QVERIFY(QMetaObject::invokeMethod(fields, slot, Q_ARG(QString, QStringLiteral("a b"))));
    for (const QLineEdit* name : {first(*dialog), second(*dialog)})
        QCOMPARE(name->styleSheet(), QString());
    QCOMPARE(message(*dialog)->text(), noWarning);
}

void TestAbbreviations::errorRefusesAdding()
{
    for (const bool inFirst : {true, false}) {
        const auto dialog = make(QStringLiteral("add"));
        const auto accept = [&] {
            QLineEdit* name = inFirst ? first(*dialog) : second(*dialog);
            write(name, "a ");
            QCOMPARE(name->text(), QStringLiteral("a"));
            dialog->accept();
            QVERIFY(dialog->isVisible());
            write(name, "b");
            dialog->accept();
            QVERIFY(!dialog->isVisible());
        };
        QCOMPARE(run(*dialog, accept), 1);
    }
}

void TestAbbreviations::errorDoesNotRefuseEditing()
{
    const auto dialog = make(QStringLiteral("edit"));
    const auto accept = [&] {
        write(first(*dialog), "a ");
        QCOMPARE(first(*dialog)->styleSheet(), badStyle);
        dialog->accept();
    };
    QCOMPARE(run(*dialog, accept), 1);
    QCOMPARE(first(*dialog)->text(), QStringLiteral("a"));
}

QTEST_MAIN(TestAbbreviations)
#include "test_abbreviations.moc"
