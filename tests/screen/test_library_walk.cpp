// Two thousand random acts of a user on the library, through its buttons, dialogs, menus, clicks, drops and
// notes, compared after each with a model that shares nothing with the program's catalogue.

#include "LibraryFixture.h"

#include "LibraryModel.h"
#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"
#include "screen/scale_payload.h"

#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QtTest>

#include <random>

using library_model::Model;

class TestLibraryWalk : public LibraryFixture
{
    Q_OBJECT

private slots:
    void randomActsAgreeWithTheModel();

private:
    static constexpr int steps = 2000;

    int pick(int count) { return static_cast<int>(random() % static_cast<unsigned>(qMax(1, count))); }
    bool chance(int percent) { return pick(100) < percent; }
    QString anyCategory() { return model.categories().value(pick(model.categoryCount())); }
    QString newName();
    QString anyWord();
    void follow(const QString& word);
    void storeNames(const QString& word, const QString& title, const QString& short1, const QString& short2,
                    const QString& text);

    void addCategory();
    void renameCategory();
    void deleteCategory();
    void addScale();
    void editScale();
    void copyOrMove();
    void deleteScale();
    void clickCategory();
    void clickScale(bool twice);
    void drop();
    void dropOnCategory();
    void playWord();
    void playNotes();
    void turnSwitch();
    QString difference() const;
    QString step();

    std::mt19937 random{20240611};
    Model model;
    QString described;
    int named = 0;
};

QString TestLibraryWalk::newName()
{
    static const char* const kinds[] = {"%1 - Name", "name %1", "bold %1 <b> & \"x\"", "  ", "9 - %1"};
    if (chance(15) && model.categoryCount() > 0)
        return anyCategory(); // taken
    const QString kind = QLatin1String(kinds[pick(5)]);
    return kind.contains('%') ? kind.arg(++named) : kind;
}

QString TestLibraryWalk::anyWord()
{
    QString word = QStringLiteral("x");
    if (chance(60)) { // one that stands somewhere
        const auto all = model.scalesFromCategory(anyCategory());
        if (!all.isEmpty())
            return all.at(pick(all.size()));
    }
    for (int i = 1; i < 12; ++i)
        word += chance(50) ? 'x' : 'o';
    return word;
}

/// What a played word does to the place in the library.
void TestLibraryWalk::follow(const QString& word)
{
    described = word;
    const QString current = model.currentCategory();
    const int index = model.indexOfScaleFromCategory(current, word, 0);
    model.setCurrentScaleIndex(current, index);
    const auto others = model.findCategoriesWithScale(word);
    if (index >= 0 || others.isEmpty())
        return;
    model.setCurrentCategory(others.first());
    model.setCurrentScaleIndex(others.first(), model.indexOfScaleFromCategory(others.first(), word, 0));
}

void TestLibraryWalk::addCategory()
{
    const QString name = newName();
    const bool accepts = chance(85);
    giveName(name, accepts);
    click(LibraryButton::add_category);
    if (!accepts || name.trimmed().isEmpty())
        return;
    model.insertCategory(name);
    model.setCurrentCategory(name);
}

void TestLibraryWalk::renameCategory()
{
    const QString name = newName(), old = model.currentCategory();
    const bool accepts = chance(85);
    if (old.isEmpty())
        return;
    giveName(name, accepts);
    click(LibraryButton::rename_category);
    const int remembered = model.currentScaleIndex(old);
    if (!accepts || name.trimmed().isEmpty() || !model.renameCategory(old, name))
        return;
    model.setCurrentCategory(name);
    model.setCurrentScaleIndex(name, remembered);
}

void TestLibraryWalk::deleteCategory()
{
    if (model.categoryCount() < 2) {
        click(LibraryButton::delete_category);
        return;
    }
    const bool accepts = chance(60);
    whenOpen<AlertWidget>([&](AlertWidget& alert) { clickButtonOf(alert, accepts); });
    click(LibraryButton::delete_category);
    if (!accepts)
        return;
    const int index = model.currentCagetoryIndex();
    model.removeCategory(model.currentCategory());
    if (index >= model.categoryCount())
        model.setCurrentCategoryIndex(index - 1);
    follow(scale().scaleModifier());
}

void TestLibraryWalk::storeNames(const QString& word, const QString& title, const QString& short1,
                                 const QString& short2, const QString& text)
{
    model.setScaleData(word, {word, short1, short2, title, text}, DatabaseLibrary::LibraryRole);
}

void TestLibraryWalk::addScale()
{
    const QString word = scale().scaleModifier(), to = anyCategory();
    const QString title = QStringLiteral("T%1 <&>").arg(++named);
    const bool accepts = chance(85);
    QStringList shorts;
    QString text;
    whenOpen<AddWindow>([&](AddWindow& dialog) {
        dialog.setName(title);
        dialog.setAbbr1(QStringLiteral("A%1").arg(named % 100));
        dialog.setAbbr2(QStringLiteral("b"));
        dialog.setCurrentCategory(to);
        text = dialog.description();
        clickButtonOf(dialog, accepts);
    });
    click(LibraryButton::add_scale);
    if (!accepts)
        return;
    storeNames(word, title, QStringLiteral("A%1").arg(named % 100), QStringLiteral("b"), text);
    model.appendScaleToCategory(to, word);
    model.setCurrentCategory(to);
    model.setCurrentScaleIndex(to, model.indexOfScaleFromCategory(to, word, 0));
    follow(word);
}

void TestLibraryWalk::editScale()
{
    const bool label = chance(30);
    const QString word = label ? scale().scaleModifier() : described;
    if (word.isEmpty() || model.findCategoriesWithScale(word).isEmpty())
        return;
    const QString title = QStringLiteral("E%1").arg(++named);
    const bool accepts = chance(85);
    whenOpen<EditWindow>([&](EditWindow& dialog) {
        dialog.setName(title);
        dialog.setAbbr1(QStringLiteral("E"));
        dialog.setAbbr2(QStringLiteral("%1").arg(named % 100));
        dialog.setDescription(QStringLiteral("one\ntwo"));
        clickButtonOf(dialog, accepts);
    });
    click(label ? LibraryButton::scale_label : LibraryButton::edit_description);
    if (!accepts)
        return;
    storeNames(word, title, QStringLiteral("E"), QString::number(named % 100), QStringLiteral("one\ntwo"));
    follow(scale().scaleModifier());
}

void TestLibraryWalk::copyOrMove()
{
    const bool copies = chance(50);
    const QString word = model.currentScale(), from = model.currentCategory(), to = anyCategory();
    if (word.isEmpty()) {
        click(copies ? LibraryButton::copy_scale : LibraryButton::move_scale);
        return;
    }
    whenMenu([&](QMenu& menu) {
        for (QAction* action : menu.actions())
            if (action->property("category").toString() == to && action->isEnabled())
                return menu.setActiveAction(action), QTest::keyClick(&menu, Qt::Key_Enter);
    });
    click(copies ? LibraryButton::copy_scale : LibraryButton::move_scale);
    if (to == from || model.indexOfScaleFromCategory(to, word, 0) >= 0)
        return;
    if (copies) {
        model.appendScaleToCategory(to, word);
    } else {
        model.moveScale(model.currentScaleIndex(from), model.scalesCountFromCategory(to), from, to);
        model.setCurrentCategory(to);
        model.setCurrentScaleIndex(to, model.scalesCountFromCategory(to) - 1);
    }
    follow(scale().scaleModifier());
}

void TestLibraryWalk::deleteScale()
{
    const QString word = model.currentScale(), from = model.currentCategory();
    if (word.isEmpty()) {
        click(LibraryButton::delete_scale);
        return;
    }
    const bool accepts = chance(60);
    whenOpen<AlertWidget>([&](AlertWidget& alert) { clickButtonOf(alert, accepts); });
    click(LibraryButton::delete_scale);
    if (!accepts)
        return;
    model.removeScaleFromCategory(from, model.currentScaleIndex(from));
    described = model.currentScale(); // the neighbour, for a moment
    follow(scale().scaleModifier());
}

void TestLibraryWalk::clickCategory()
{
    const int row = pick(model.categoryCount());
    clickRow(categoryList(), row);
    model.setCurrentCategoryIndex(row);
    const QString name = model.currentCategory();
    const QString word = model.scaleFromCategory(name, model.currentScaleIndex(name));
    model.setCurrentScaleIndex(name, model.indexOfScaleFromCategory(name, word, 0));
    if (!word.isEmpty())
        described = word;
}

void TestLibraryWalk::clickScale(bool twice)
{
    const QString name = model.currentCategory();
    if (model.isEmptyCategory(name))
        return;
    const int row = pick(model.scalesCountFromCategory(name));
    const QString word = model.scaleFromCategory(name, row);
    const bool wasOn = scale().switchOn;
    const QString before = scale().scaleModifier();
    clickRow(scaleList(), row);
    if (twice)
        screen().scaleListItemDblClicked(scaleList().item(row));
    model.setCurrentScaleIndex(name, row);
    if (twice && !wasOn) {
        follow(before); // by the switch
        model.setCurrentCategory(name);
    }
    described = word;
    if (scale().switchOn)
        follow(word);
}

void TestLibraryWalk::drop()
{
    const QString current = model.currentCategory(), from = chance(50) ? current : anyCategory();
    const int index = pick(model.scalesCountFromCategory(from) + 1), before = pick(9);
    const QString word = model.scaleFromCategory(from, index);
    const std::unique_ptr<QMimeData> mime(
        packPayload({from, word, QString(), index}, scaleList().customMimeType()));
    const bool taken = scaleList().dropData(before, mime.get());
    const int count = model.scalesCountFromCategory(current);
    const int to =
        from != current ? qMin(before, count) : qMin(before > index ? before - 1 : before, count - 1);
    const bool takes = !word.isEmpty() &&
                       (from == current ? to != index : !model.scalesFromCategory(current).contains(word));
    QCOMPARE(taken, takes);
    if (!taken)
        return;
    if (from == current)
        model.moveScale(index, to, current);
    else
        model.insertScaleToCategory(current, to, word);
    model.setCurrentScaleIndex(current, to);
    follow(scale().scaleModifier());
}

void TestLibraryWalk::dropOnCategory()
{
    const QString from = model.currentCategory();
    const int row = pick(model.categoryCount()), index = pick(model.scalesCountFromCategory(from) + 1);
    const QString to = model.categories().at(row), word = model.scaleFromCategory(from, index);
    const bool copies = chance(50);
    const std::unique_ptr<QMimeData> mime(
        packPayload({from, word, QString(), index}, scaleList().customMimeType()));
    categoryList().offer(mime.get(), copies ? Qt::CopyAction : Qt::MoveAction);
    const bool taken = categoryList().dropData(row, mime.get());
    categoryList().dragCancel();
    const bool takes = !word.isEmpty() && to != from && !model.scalesFromCategory(to).contains(word);
    QCOMPARE(taken, takes);
    if (!taken)
        return;
    if (copies)
        model.appendScaleToCategory(to, word);
    else
        model.moveScale(index, model.scalesCountFromCategory(to), from, to);
    model.setCurrentCategory(to);
    model.setCurrentScaleIndex(to, model.scalesCountFromCategory(to) - 1);
    follow(scale().scaleModifier());
}

void TestLibraryWalk::playWord()
{
    const QString word = anyWord();
    play(word);
    follow(word);
}

// Each key asks once more for the word that is played; a recall first with the old word, when it sets the
// switch.
void TestLibraryWalk::playNotes()
{
    const int key = 50 + pick(30);
    const QString before = scale().scaleModifier();
    sendNote(key, 100);
    sendNote(key, 0);
    follow(before);
    follow(scale().scaleModifier());
}

void TestLibraryWalk::turnSwitch()
{
    if (scale().switchOn)
        scale().setSwitchOff(true);
    else
        scale().setSwitchOn(true);
    follow(scale().scaleModifier());
}

QString TestLibraryWalk::step()
{
    struct Kind
    {
        const char* name;
        int weight;
        std::function<void()> act;
    };
    const Kind kinds[] = {{"add category", 6, [this] { addCategory(); }},
                          {"rename category", 6, [this] { renameCategory(); }},
                          {"delete category", 7, [this] { deleteCategory(); }},
                          {"add scale", 10, [this] { addScale(); }},
                          {"edit scale", 8, [this] { editScale(); }},
                          {"copy or move", 10, [this] { copyOrMove(); }},
                          {"delete scale", 7, [this] { deleteScale(); }},
                          {"click category", 10, [this] { clickCategory(); }},
                          {"click scale", 10, [this] { clickScale(false); }},
                          {"double click", 4, [this] { clickScale(true); }},
                          {"drop", 8, [this] { drop(); }},
                          {"drop on category", 8, [this] { dropOnCategory(); }},
                          {"play", 10, [this] { playWord(); }},
                          {"notes", 6, [this] { playNotes(); }},
                          {"switch", 3, [this] { turnSwitch(); }}};
    int total = 0;
    for (const Kind& kind : kinds)
        total += kind.weight;
    int at = pick(total);
    for (const Kind& kind : kinds)
        if ((at -= kind.weight) < 0) {
            kind.act();
            return QString::fromLatin1(kind.name);
        }
    return {};
}

QString TestLibraryWalk::difference() const
{
    const QVector<QString> wanted = model.categories();
    if (library().categories() != wanted)
        return QStringLiteral("categories");
    for (const QString& name : wanted) {
        if (words(name) != model.scalesFromCategory(name))
            return QStringLiteral("words of ") + name;
        if (library().currentScaleIndex(name) != model.currentScaleIndex(name))
            return QStringLiteral("scale index of ") + name;
        for (const QString& word : words(name)) {
            scale_data a, b;
            model.getScaleData(word, b, DatabaseLibrary::LibraryRole);
            if (!library().getScaleData(word, a, DatabaseLibrary::LibraryRole) || a.title != b.title ||
                a.abbr1 != b.abbr1 || a.abbr2 != b.abbr2 || a.libBody != b.libBody)
                return QStringLiteral("record of ") + word;
        }
    }
    if (library().currentCategory() != model.currentCategory())
        return QStringLiteral("current category");
    screen().refreshBrowser(); // not to wait for it
    if (rows(categoryList()) != QStringList(wanted.toList()) ||
        categoryList().currentRow() != model.currentCagetoryIndex())
        return QStringLiteral("category rows");
    const QString current = model.currentCategory();
    QStringList shown;
    for (const QString& word : model.scalesFromCategory(current)) {
        scale_data record;
        model.getScaleData(word, record, DatabaseLibrary::AnyRole);
        shown << record.title;
    }
    if (shown.isEmpty())
        shown << QStringLiteral("(no records)");
    if (rows(scaleList()) != shown || scaleList().currentRow() != model.currentScaleIndex(current))
        return QStringLiteral("scale rows");
    const QString played = scale().scaleModifier();
    const bool known = played.count('x') < 2 || !model.findCategoriesWithScale(played).isEmpty();
    return screen().isMatches() == known ? QString() : QStringLiteral("mark");
}

void TestLibraryWalk::randomActsAgreeWithTheModel()
{
    show();
    play(ionian);
    model.setCurrentCategoryIndex(0);
    follow(ionian);
    QCOMPARE(difference(), QString());
    for (int i = 0; i < steps; ++i) {
        const QString act = step();
        const QString wrong = difference();
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("step %1, %2: %3").arg(i).arg(act, wrong)));
        QVERIFY(!window->dialogOpen && !QApplication::activePopupWidget());
    }
    QVERIFY(seen > steps / 5); // dialogs and menus did open
}

QTEST_MAIN(TestLibraryWalk)
#include "test_library_walk.moc"
