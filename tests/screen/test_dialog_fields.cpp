// What the dialogs with fields show, take and give back, and when they can be accepted.

#include "DialogFixture.h"
#include "keys/pictures.h"
#include "screen/AddWindow.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>

class TestDialogFields : public DialogFixture
{
    Q_OBJECT

private slots:
    // Looks
    void panels_data();
    void panels();
    void everythingFits_data();
    void everythingFits();
    void defaults_data();
    void defaults();
    void descriptionShowsWholeLines_data();
    void descriptionShowsWholeLines();

    // Focus
    void firstFocus_data();
    void firstFocus();
    void changeDialogSelectsItsName();

    // Values
    void scaleValues_data();
    void scaleValues();
    void descriptionIsPlainText();
    void categoryChoice();
    void changeDialogValues();

    // Acceptance
    void emptyFieldsAreRefused_data();
    void emptyFieldsAreRefused();
    void categoryMustBeChosen();
    void emptyDescriptionIsAccepted_data();
    void emptyDescriptionIsAccepted();

private:
    static QLineEdit* line(const AbstractDialog& dialog, const char* name)
    {
        return dialog.findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    static QPushButton* button(const AbstractDialog& dialog, const char* name)
    {
        return dialog.findChild<QPushButton*>(QString::fromLatin1(name));
    }
    void addScaleKinds() const;
};

void TestDialogFields::addScaleKinds() const
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("add") << QStringLiteral("add");
    QTest::newRow("edit") << QStringLiteral("edit");
}

void TestDialogFields::panels_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QSize>("size");
    const QString folder = QStringLiteral(":/Resources/Background/");
    QTest::newRow("change") << QStringLiteral("change") << folder + QStringLiteral("message_background.png")
                            << QSize(428, 215);
    QTest::newRow("add") << QStringLiteral("add") << folder + QStringLiteral("addWindow_background.png")
                         << QSize(428, 330);
    QTest::newRow("edit") << QStringLiteral("edit") << folder + QStringLiteral("editionWindow_background.png")
                          << QSize(428, 296);
}

// Compared along the panel's frame, where no field stands.
void TestDialogFields::panels()
{
    QFETCH(QString, kind);
    QFETCH(QString, picture);
    QFETCH(QSize, size);
    const auto dialog = make(kind);
    const QImage wanted = pictures::load(picture).toImage();
    QCOMPARE(wanted.size(), size);
    run(*dialog, [&] {
        const auto panel = dialog->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).first();
        QCOMPARE(panel->minimumSize(), size);
        QCOMPARE(panel->maximumSize(), size);
        const QImage shown = window->grab(panel->geometry()).toImage();
        for (int x = 20; x < size.width() - 20; ++x)
            for (const int y : {12, size.height() - 12})
                QCOMPARE(shown.pixelColor(x, y), wanted.pixelColor(x, y));
    });
}

void TestDialogFields::everythingFits_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"change", "add", "edit"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestDialogFields::everythingFits()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        const auto* panel = dialog->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).first();
        const QRect inner = panel->rect().marginsRemoved({33, 25, 25, 25});
        const auto parts = panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(parts.size() >= 4);
        for (const QWidget* part : parts) {
            QVERIFY2(inner.contains(part->geometry()), qPrintable(part->objectName()));
            for (const QWidget* other : parts)
                QVERIFY(part == other || !part->geometry().intersects(other->geometry()));
            const auto* label = qobject_cast<const QLabel*>(part);
            if (!label || !label->wordWrap())
                QVERIFY2(qobject_cast<const QTextEdit*>(part) ||
                             part->width() >= part->minimumSizeHint().width(),
                         qPrintable(part->objectName()));
            if (label)
                QVERIFY(label->height() >= label->heightForWidth(label->width()));
        }
    });
}

void TestDialogFields::defaults_data()
{
    addScaleKinds();
}

void TestDialogFields::defaults()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    QCOMPARE(line(*dialog, "abbr1")->text(), QStringLiteral("User"));
    QCOMPARE(line(*dialog, "abbr2")->text(), QStringLiteral("1"));
    for (const char* name : {"abbr1", "abbr2"})
        QVERIFY(line(*dialog, name)->alignment() & Qt::AlignHCenter);
    const auto* description = dialog->findChild<QTextEdit*>();
    QCOMPARE(description->placeholderText(), QStringLiteral("(no description)"));
    QVERIFY(description->toPlainText().isEmpty());
    QVERIFY(description->toolTip().contains(QStringLiteral("Shift+Return")));
    QCOMPARE(button(*dialog, "okButton")->text(), QStringLiteral("Save"));
    QCOMPARE(button(*dialog, "cancelButton")->text(), QStringLiteral("Cancel"));
    const auto* message = dialog->findChild<QLabel*>(QStringLiteral("message"));
    QCOMPARE(message->text(), QStringLiteral(" "));
    QVERIFY(message->alignment() & Qt::AlignHCenter);
    QCOMPARE(message->styleSheet(), QStringLiteral("QLabel { color:red; font-size: 9px; padding: 0px; }"));
    QCOMPARE(dialog->findChildren<QComboBox*>().size(), kind == QLatin1String("add") ? 1 : 0);
}

void TestDialogFields::descriptionShowsWholeLines_data()
{
    addScaleKinds();
}

void TestDialogFields::descriptionShowsWholeLines()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    auto* description = dialog->findChild<QTextEdit*>();
    description->setPlainText(QStringLiteral("a line\n").repeated(40));
    const auto lineTop = [description](int line) {
        return description->cursorRect(QTextCursor(description->document()->findBlockByNumber(line))).top();
    };
    run(*dialog, [&] {
        const int height = lineTop(1) - lineTop(0), margin = lineTop(0);
        const int room = description->viewport()->height() - 2 * margin;
        QVERIFY(height > 10 && room / height >= 8);
        QCOMPARE(room % height, 0);
        description->verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QCOMPARE(lineTop(1), margin);
    });
}

void TestDialogFields::firstFocus_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("field");
    QTest::newRow("1") << 1 << QStringLiteral("title");
    QTest::newRow("2") << 2 << QStringLiteral("abbr1");
    QTest::newRow("3") << 3 << QStringLiteral("abbr2");
    QTest::newRow("4") << 4 << QStringLiteral("description");
    QTest::newRow("another") << 7 << QStringLiteral("title");
    QTest::newRow("negative") << -1 << QStringLiteral("title");
}

void TestDialogFields::firstFocus()
{
    QFETCH(int, number);
    QFETCH(QString, field);
    const auto expect = [&](auto&& dialog) {
        dialog.setName(QStringLiteral("A name"));
        dialog.setAbbr1(QStringLiteral("abc"));
        for (int i = 0; i < 2; ++i) // at every show
            run(dialog, [&] {
                const QWidget* focus = QApplication::focusWidget();
                QCOMPARE(focus->objectName(), field);
                if (const auto* edit = qobject_cast<const QLineEdit*>(focus))
                    QCOMPARE(edit->selectedText(), edit->text());
                press(Qt::Key_Tab);
            });
    };
    expect(AddWindow(number, window.get()));
    expect(EditWindow(number, window.get()));
}

void TestDialogFields::changeDialogSelectsItsName()
{
    ChangeDialog dialog(window.get());
    dialog.setText(QStringLiteral("Old"));
    run(dialog, [&] {
        QCOMPARE(line(dialog, "name"), QApplication::focusWidget());
        type("New");
        QCOMPARE(dialog.text(), QStringLiteral("New"));
    });
}

void TestDialogFields::scaleValues_data()
{
    addScaleKinds();
}

void TestDialogFields::scaleValues()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    const auto expect = [](auto& scale) {
        scale.setName(QStringLiteral(" <b>A</b> & B "));
        scale.setAbbr1(QStringLiteral("ab"));
        scale.setAbbr2(QStringLiteral("#4"));
        scale.setDescription(QStringLiteral("one\n<b>two</b>"));
        QCOMPARE(scale.name(), QStringLiteral(" <b>A</b> & B "));
        QCOMPARE(scale.abbr1(), QStringLiteral("ab"));
        QCOMPARE(scale.abbr2(), QStringLiteral("#4"));
        QCOMPARE(scale.description(), QStringLiteral("one\n<b>two</b>"));
    };
    if (auto* add = qobject_cast<AddWindow*>(dialog.get()))
        expect(*add);
    else
        expect(*qobject_cast<EditWindow*>(dialog.get()));
    QCOMPARE(line(*dialog, "title")->text(), QStringLiteral(" <b>A</b> & B "));
    QCOMPARE(line(*dialog, "abbr1")->text(), QStringLiteral("ab"));
    QCOMPARE(line(*dialog, "abbr2")->text(), QStringLiteral("#4"));
}

void TestDialogFields::descriptionIsPlainText()
{
    AddWindow dialog(4, window.get());
    QVERIFY(!dialog.findChild<QTextEdit*>()->acceptRichText());
    dialog.setDescription(QStringLiteral("<i>a</i>"));
    QCOMPARE(dialog.findChild<QTextEdit*>()->toPlainText(), QStringLiteral("<i>a</i>"));
}

void TestDialogFields::categoryChoice()
{
    AddWindow dialog(1, window.get());
    QCOMPARE(dialog.category(), QString());
    dialog.setCategoryList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    QCOMPARE(dialog.category(), QStringLiteral("A"));
    dialog.setCurrentCategory(QStringLiteral("B"));
    QCOMPARE(dialog.category(), QStringLiteral("B"));
    for (const char* unknown : {"D", "c", "", "A "}) {
        dialog.setCurrentCategory(QString::fromLatin1(unknown));
        QCOMPARE(dialog.category(), QStringLiteral("B"));
    }
    dialog.setCategoryList({QStringLiteral("Z"), QStringLiteral("C"), QStringLiteral("B")});
    QCOMPARE(dialog.category(), QStringLiteral("B"));
    dialog.setCategoryList({QStringLiteral("Y"), QStringLiteral("X")});
    QCOMPARE(dialog.category(), QStringLiteral("Y"));
    dialog.setCategoryList({});
    QCOMPARE(dialog.category(), QString());
}

void TestDialogFields::changeDialogValues()
{
    ChangeDialog dialog(window.get());
    QCOMPARE(dialog.text(), QString());
    dialog.setText(QStringLiteral("<b>Name"));
    QCOMPARE(dialog.text(), QStringLiteral("<b>Name"));
    QCOMPARE(line(dialog, "name")->text(), QStringLiteral("<b>Name"));
    dialog.setLabel(QStringLiteral("Choose a name for the new Category:"));
    QCOMPARE(dialog.label(), QStringLiteral("Choose a name for the new Category:"));
    QCOMPARE(dialog.findChild<QLabel*>()->text(), dialog.label());
    QCOMPARE(button(dialog, "cancelButton")->text(), QStringLiteral("Cancel"));
    dialog.setOkButtonTitle(QStringLiteral("Create"));
    QCOMPARE(button(dialog, "okButton")->text(), QStringLiteral("Create"));
    QCOMPARE(run(dialog, [&] { clickOn(button(dialog, "okButton")); }), 1);
    QCOMPARE(run(dialog,
                 [&] {
                     clickOn(button(dialog, "cancelButton"));
                     QVERIFY(!dialog.isVisible());
                 }),
             0);
}

void TestDialogFields::emptyFieldsAreRefused_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    for (const char* kind : {"add", "edit"}) {
        const QString name = QString::fromLatin1(kind);
        for (const char* field : {"title", "abbr1", "abbr2"}) {
            QTest::addRow("%s without %s", kind, field)
                << name << QString::fromLatin1(field) << QString() << false;
            QTest::addRow("%s with %s", kind, field)
                << name << QString::fromLatin1(field) << QStringLiteral("x") << true;
        }
        QTest::addRow("%s with a blank title", kind)
            << name << QStringLiteral("title") << QStringLiteral("  \t ") << false;
    }
}

void TestDialogFields::emptyFieldsAreRefused()
{
    QFETCH(QString, kind);
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(bool, accepted);
    const auto dialog = make(kind);
    dialog->findChild<QLineEdit*>(field)->setText(text);
    const auto tryAll = [&] {
        if (!accepted) {
            dialog->accept();
            press(Qt::Key_Return);
            QVERIFY(dialog->isVisible() && window->dialogOpen);
            QVERIFY(!dialog->wasAccepted);
        }
        clickOn(button(*dialog, "okButton"));
        QCOMPARE(dialog->isVisible(), !accepted);
    };
    QCOMPARE(run(*dialog, tryAll), accepted ? 1 : 0);
}

void TestDialogFields::categoryMustBeChosen()
{
    AddWindow dialog(1, window.get());
    dialog.setName(QStringLiteral("x"));
    run(dialog, [&] {
        dialog.accept();
        QVERIFY(dialog.isVisible());
        dialog.setCategoryList({QStringLiteral("A")});
        dialog.accept();
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(dialog.wasAccepted);
}

void TestDialogFields::emptyDescriptionIsAccepted_data()
{
    addScaleKinds();
}

void TestDialogFields::emptyDescriptionIsAccepted()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    QVERIFY(dialog->findChild<QTextEdit*>()->toPlainText().isEmpty());
    QCOMPARE(run(*dialog, [&] { dialog->accept(); }), 1);
}

QTEST_MAIN(TestDialogFields)
#include "test_dialog_fields.moc"
