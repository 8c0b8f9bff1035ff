// The two lists of the library themselves: their rows, the places for a drop, and the marks of these places.

#include "LibraryFixture.h"

#include "keys/pictures.h"

#include <QIcon>
#include <QLabel>
#include <QScrollBar>
#include <QTextDocument>
#include <QtTest>

class TestScaleLists : public LibraryFixture
{
    Q_OBJECT

private slots:
    void init() { openPlaying(); }

    // Rows
    void listsDragByThemselves_data() { addLists(); }
    void listsDragByThemselves();
    void rowsHaveTheHeightThatIsSet_data() { addLists(); }
    void rowsHaveTheHeightThatIsSet();
    void longTextIsElidedAndToldByItsToolTip_data() { addLists(); }
    void longTextIsElidedAndToldByItsToolTip();
    void toolTipShowsMarkupAsText();
    void rowsCanBeInsertedAndRenewed();
    void categoriesHaveFolders();
    void keyOfARowThatIsNone_data() { addLists(); }
    void keyOfARowThatIsNone();

    // The mark
    void markIsHiddenAtFirst_data() { addLists(); }
    void markIsHiddenAtFirst();
    void lineStandsBeforeItsRow();
    void frameLiesOnItsCategory();
    void noMarkOutside_data() { addLists(); }
    void noMarkOutside();
    void markFollowsThePointerButForOnePlace();

    // Places
    void placesOfTheScaleList();
    void placesOfAnEmptyCategory();
    void placesOfTheCategoryList();

    // The picture that is dragged
    void draggedPictureShowsTheRow();
    void draggedPictureOfNoRowIsTransparent();

private:
    static void addLists()
    {
        QTest::addColumn<bool>("inScales");
        QTest::newRow("categories") << false;
        QTest::newRow("scales") << true;
    }
    AbstractListWidget& fetchedList() const
    {
        QFETCH(bool, inScales);
        return inScales ? static_cast<AbstractListWidget&>(scaleList()) : categoryList();
    }
    int rowHeight() const { return scaleList().itemHeight(); }
    static QLabel& markOf(const QListWidget& list) { return *list.viewport()->findChild<QLabel*>(); }
};

void TestScaleLists::listsDragByThemselves()
{
    const AbstractListWidget& list = fetchedList();
    QCOMPARE(list.customMimeType(), QStringLiteral("sorvane/scaleitemmodeldata"));
    QCOMPARE(list.supportedDropActions(), Qt::MoveAction | Qt::CopyAction);
    QVERIFY(!list.isDragging());
    QCOMPARE(list.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(list.selectionMode(), QAbstractItemView::SingleSelection);
    QVERIFY(!list.accessibleName().isEmpty());
}

void TestScaleLists::rowsHaveTheHeightThatIsSet()
{
    AbstractListWidget& list = fetchedList();
    QVERIFY(list.itemHeight() >= 12 && list.itemHeight() <= 16); // room for 10 pixels of text
    QCOMPARE(list.visualItemRect(list.item(0)).height(), list.itemHeight());
    list.setItemHeight(20);
    QCOMPARE(list.itemHeight(), 20);
    QCOMPARE(list.item(1)->sizeHint().height(), 20);
    list.setItemHeight(-3);
    QCOMPARE(list.itemHeight(), 1);
}

void TestScaleLists::longTextIsElidedAndToldByItsToolTip()
{
    AbstractListWidget& list = fetchedList();
    const QString text =
        QStringLiteral("A very long name that no row of the list has room for <at all> & more");
    if (&list == &scaleList())
        scaleList().insertItem(0, ionian, text);
    else
        categoryList().insertItem(0, text);
    list.doItemsLayout();
    QCOMPARE(list.item(0)->text(), text);
    QCOMPARE(list.item(0)->toolTip(), text);
    QCOMPARE(list.textElideMode(), Qt::ElideRight);
    QCOMPARE(list.visualItemRect(list.item(0)).width(), list.viewport()->width());
    QCOMPARE(list.horizontalScrollBar()->maximum(), 0);
}

void TestScaleLists::toolTipShowsMarkupAsText()
{
    const QString text = QStringLiteral("<b>A</b> & \"B\"");
    scaleList().insertItem(0, ionian, text);
    QTextDocument shown;
    const QString tip = scaleList().item(0)->toolTip();
    QVERIFY(Qt::mightBeRichText(tip));
    shown.setHtml(tip);
    QCOMPARE(shown.toPlainText(), text);
}

void TestScaleLists::rowsCanBeInsertedAndRenewed()
{
    scaleList().insertItem(2, unknownWord, QStringLiteral("New"));
    QCOMPARE(scaleList().count(), 8);
    QCOMPARE(scaleList().keyAt(2), unknownWord);
    scaleList().updateItem(scaleList().item(2), 2, otherUnknownWord, QStringLiteral("Newer"));
    QCOMPARE(scaleList().keyAt(2), otherUnknownWord);
    QCOMPARE(scaleList().item(2)->text(), QStringLiteral("Newer"));
    categoryList().insertItem(10, QStringLiteral("New"));
    categoryList().updateItem(categoryList().item(10), 10, QStringLiteral("Newer"));
    QCOMPARE(categoryList().keyAt(10), QStringLiteral("Newer"));
    QCOMPARE(categoryList().item(10)->text(), QStringLiteral("Newer"));
}

void TestScaleLists::categoriesHaveFolders()
{
    const QIcon icon = categoryList().item(3)->icon();
    const auto loaded = [](const char* state) {
        return pictures::load(QStringLiteral(":/Resources/LibraryScreen/LibListFolderIcon_") +
                              QLatin1String(state) + QStringLiteral(".png"))
            .toImage();
    };
    const QSize size = categoryList().iconSize();
    QVERIFY(!loaded("neutral").isNull() && loaded("neutral") != loaded("active"));
    QCOMPARE(icon.pixmap(size, QIcon::Normal).toImage(), loaded("neutral"));
    QCOMPARE(icon.pixmap(size, QIcon::Selected).toImage(), loaded("active"));
    QVERIFY(scaleList().item(0)->icon().isNull());
}

void TestScaleLists::keyOfARowThatIsNone()
{
    AbstractListWidget& list = fetchedList();
    QVERIFY(!list.keyAt(0).isEmpty());
    for (const int row : {-1, list.count(), 1000})
        QCOMPARE(list.keyAt(row), QString());
    list.showRemark(QStringLiteral("a remark"));
    QCOMPARE(rows(list), QStringList{QStringLiteral("a remark")});
    QCOMPARE(list.keyAt(0), QString());
}

void TestScaleLists::markIsHiddenAtFirst()
{
    const QLabel& mark = markOf(fetchedList());
    QVERIFY(mark.isHidden());
    QCOMPARE(mark.focusPolicy(), Qt::NoFocus);
    QVERIFY(mark.testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(!mark.styleSheet().isEmpty());
}

void TestScaleLists::lineStandsBeforeItsRow()
{
    const QLabel& line = markOf(scaleList());
    const int width = scaleList().viewport()->width();
    for (const int row : {1, 2, 4}) {
        scaleList().showIndicator(true, row);
        QVERIFY(!line.isHidden());
        const int top = scaleList().visualItemRect(scaleList().item(row)).top();
        QCOMPARE(line.geometry(), QRect(0, top - 1, width, 2));
    }
    scaleList().showIndicator(true, 0);
    QCOMPARE(line.geometry(), QRect(0, 0, width, 2)); // inside the list
    showCategory(2);
    const int count = scaleList().count();
    QVERIFY(count < 5);
    scaleList().showIndicator(true, count);
    QCOMPARE(line.geometry(), QRect(0, rowHeight() * count - 1, scaleList().viewport()->width(), 2));
    scaleList().showIndicator(false, 1);
    QVERIFY(line.isHidden());
    scaleList().showIndicator(true, -1);
    QVERIFY(line.isHidden());
}

void TestScaleLists::frameLiesOnItsCategory()
{
    const QLabel& frame = markOf(categoryList());
    for (const int row : {0, 3}) {
        categoryList().showIndicator(true, row);
        QVERIFY(!frame.isHidden());
        QCOMPARE(frame.geometry(), categoryList().visualItemRect(categoryList().item(row)));
    }
    for (const int none : {-1, 10}) {
        categoryList().showIndicator(true, none);
        QVERIFY(frame.isHidden());
    }
    categoryList().showIndicator(true, 1);
    categoryList().showIndicator(false, 1);
    QVERIFY(frame.isHidden());
}

void TestScaleLists::noMarkOutside()
{
    AbstractListWidget& list = fetchedList();
    const QRect inside = list.viewport()->rect();
    for (const QPoint place : {QPoint(-1, 5), QPoint(5, -1), inside.bottomRight() + QPoint(1, 0),
                               inside.bottomRight() + QPoint(0, 1)}) {
        list.showIndicator(true, 1);
        QCOMPARE(list.availableIndex(place), -1);
        list.trackIndicator(place, -1);
        QVERIFY(markOf(list).isHidden());
    }
}

void TestScaleLists::markFollowsThePointerButForOnePlace()
{
    const QPoint upperHalfOfRow2(5, rowHeight() * 2 + 3);
    scaleList().trackIndicator(upperHalfOfRow2, 5);
    QVERIFY(!markOf(scaleList()).isHidden());
    QCOMPARE(markOf(scaleList()).y(), rowHeight() * 2 - 1);
    scaleList().trackIndicator(upperHalfOfRow2, 2);
    QVERIFY(markOf(scaleList()).isHidden());
}

void TestScaleLists::placesOfTheScaleList()
{
    showCategory(2);
    const int count = scaleList().count();
    QVERIFY(count >= 2 && count < 5);
    for (int row = 0; row < count; ++row) {
        QCOMPARE(scaleList().availableIndex({5, rowHeight() * row + 1}), row);
        QCOMPARE(scaleList().availableIndex({5, rowHeight() * (row + 1) - 2}), row + 1);
    }
    QCOMPARE(scaleList().availableIndex({5, scaleList().viewport()->height() - 1}), count);
}

void TestScaleLists::placesOfAnEmptyCategory()
{
    showCategory(9);
    for (const int y : {1, 12, 40})
        QCOMPARE(scaleList().availableIndex({5, y}), 0);
}

void TestScaleLists::placesOfTheCategoryList()
{
    for (int row = 0; row < 5; ++row)
        for (const int y : {0, rowHeight() - 1})
            QCOMPARE(categoryList().availableIndex({5, rowHeight() * row + y}), row);
    while (library().categoryCount() > 2)
        library().removeCategory(category(2));
    screen().refreshBrowser();
    QCOMPARE(categoryList().availableIndex({5, 60}), -1); // below the last row
}

void TestScaleLists::draggedPictureShowsTheRow()
{
    const QSize size(120, 14);
    const QImage one = scaleList().pixmapForDragging(2, size).toImage();
    QCOMPARE(one.size() / one.devicePixelRatio(), size);
    QVERIFY(one != scaleList().pixmapForDragging(3, size).toImage());
    int inked = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            inked += qAlpha(one.pixel(x, y)) > 60;
    QVERIFY2(inked > 30, QByteArray::number(inked).constData());
}

void TestScaleLists::draggedPictureOfNoRowIsTransparent()
{
    for (const int row : {-1, 7}) {
        const QImage none = scaleList().pixmapForDragging(row, {20, 14}).toImage();
        QImage clear(none.size(), none.format());
        clear.fill(Qt::transparent);
        clear.setDevicePixelRatio(none.devicePixelRatio());
        QCOMPARE(none, clear);
    }
}

QTEST_MAIN(TestScaleLists)
#include "test_scale_lists.moc"
