// Every text has room: in the font that it is written with, in every state, and with names that nobody would
// give.

#include "FaceFixture.h"
#include "FaceParts.h"
#include "FaceTexts.h"

#include "contrast.h"
#include "keys/TonicKeyItem.h"
#include "keys/pictures.h"
#include "library/default_tables.h"
#include "painted.h"
#include "screen/library_name.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionGraphicsItem>
#include <QTextBlock>
#include <QTextEdit>

namespace {

/// The names that a preset may show; flats come with files.
const QStringList tonics{QStringLiteral("C"),  QStringLiteral("C#"), QStringLiteral("Db"),
                         QStringLiteral("D"),  QStringLiteral("D#"), QStringLiteral("Eb"),
                         QStringLiteral("E"),  QStringLiteral("F"),  QStringLiteral("F#"),
                         QStringLiteral("Gb"), QStringLiteral("G"),  QStringLiteral("G#"),
                         QStringLiteral("Ab"), QStringLiteral("A"),  QStringLiteral("A#"),
                         QStringLiteral("Bb"), QStringLiteral("B")};

QFont flagFont()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(8);
    return font;
}

QString tooLong(int length)
{
    return QString(length, QLatin1Char('W'));
}

} // namespace

class TestFaceLabels : public FaceFixture
{
    Q_OBJECT

private slots:
    void fontIsTheOneThatCounts();
    void buttonsHoldTheirTexts_data();
    void buttonsHoldTheirTexts();
    void displayTextsFit();
    void tonicsFitTheirBadges_data();
    void tonicsFitTheirBadges();
    void inkStaysInItsBox_data() { addStates(); }
    void inkStaysInItsBox();
    void barNumbersDoNotTouch_data();
    void barNumbersDoNotTouch();
    void anchorNumbersFit();
    void squareNumbersFit();
    void platesHoldEveryShortName();
    void rowsAreNotCutInHeight_data();
    void rowsAreNotCutInHeight();
    void dialogsHoldTheirTexts_data();
    void dialogsHoldTheirTexts();
    void hostileNamesStayInTheirBoxes();
    void descriptionEndsInWholeLines();
    void creditLinesFit();

private:
    void chooseTonic(int index, const QString& word) const;
    void fillLibraryWithLongNames() const;
    QRectF inkOfPlate(LibraryButton::Code code, const QString& text) const;
};

// What is measured elsewhere would mean nothing in another font.
void TestFaceLabels::fontIsTheOneThatCounts()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    QCOMPARE(QFontInfo(font).family(), QStringLiteral("Liberation Sans"));
    QCOMPARE(QFontInfo(font).pixelSize(), 10);
}

void TestFaceLabels::buttonsHoldTheirTexts_data()
{
    addButtonLooks();
}

void TestFaceLabels::buttonsHoldTheirTexts()
{
    QFETCH(QString, how);
    constexpr int air = 4; // on each side, within the plate's rim
    for (QPushButton* button : sixButtons()) {
        show(*button, how);
        button->ensurePolished();
        const QString shown = QString(button->text()).replace(QLatin1String("&&"), QLatin1String("&"));
        const QFontMetrics metrics(button->font());
        QVERIFY2(metrics.horizontalAdvance(shown) <= button->width() - 2 * air, qPrintable(shown));
        QVERIFY2(metrics.height() <= button->height() - 4, qPrintable(shown));
    }
}

void TestFaceLabels::displayTextsFit()
{
    enter(QStringLiteral("credits"));
    const QLabel& version = *form().versionLabel;
    QVERIFY(version.sizeHint().width() <= version.width());
    QVERIFY(version.heightForWidth(version.width()) <= version.height());
    enter(QStringLiteral("on"));
    screen().setSceneDefault();
    const QTextDocument& page = *form().about->document();
    QVERIFY2(page.size().height() <= form().about->viewport()->height(),
             qPrintable(QString::number(page.size().height())));
    QVERIFY2(page.idealWidth() <= form().about->viewport()->width(),
             qPrintable(QString::number(page.idealWidth())));
    const QPixmap logo = form().centerLogo->pixmap(Qt::ReturnByValue);
    QVERIFY(logo.width() / logo.devicePixelRatio() <= form().centerLogo->width());
    QVERIFY(logo.height() / logo.devicePixelRatio() <= form().centerLogo->height());
}

void TestFaceLabels::tonicsFitTheirBadges_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : tonics)
        QTest::newRow(qPrintable(name)) << name;
}

// The widest letters of a badge that is one of five kinds.
void TestFaceLabels::tonicsFitTheirBadges()
{
    QFETCH(QString, name);
    const QFontMetrics metrics(flagFont());
    window->setPower(true);
    for (const HeaderItem* flag : qAsConst(presets().headers)) {
        QVERIFY2(metrics.horizontalAdvance(name) <= flag->tonicRect.width(), qPrintable(name));
        QVERIFY2(metrics.tightBoundingRect(name).height() <= flag->tonicRect.height(), qPrintable(name));
    }
}

// The ink that is really painted, on a screen dense enough to tell.
void TestFaceLabels::inkStaysInItsBox()
{
    QFETCH(QString, state);
    constexpr int dense = 3;
    enter(state);
    const auto texts = face_texts::all(*window, dialog.get());
    const auto [with, without] = face_texts::withAndWithout(texts, *window, dense);
    QStringList faults;
    for (const FaceText& text : texts) {
        const QRect box = face_texts::scaled(text.box, dense);
        const contrast::Reading in = contrast::read(with.copy(box), without.copy(box));
        const bool touches = in.box.top() == 0 || in.box.right() == box.width() - 1 ||
                             in.box.bottom() == box.height() - 1; // it begins on the left
        const bool glyphsFillIt = text.name.contains(QLatin1String("bar's")) ||
                                  text.name.startsWith(QLatin1String("row")); // touch their box by nature
        if (in.box.isEmpty() || (touches && !glyphsFillIt))
            faults << QStringLiteral("%1: ink %2,%3 %4x%5 in %6x%7")
                          .arg(text.name)
                          .arg(in.box.x())
                          .arg(in.box.y())
                          .arg(in.box.width())
                          .arg(in.box.height())
                          .arg(box.width())
                          .arg(box.height());
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFaceLabels::chooseTonic(int index, const QString& word) const
{
    tonic().setActiveKey(tonic().findKey(index));
    setScale(word);
    power()->remap();
}

void TestFaceLabels::barNumbersDoNotTouch_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("one note") << QStringLiteral("xooooooooooo");
    QTest::newRow("seven notes") << QStringLiteral("xoxoxxoxoxox");
    QTest::newRow("twelve notes") << QStringLiteral("xxxxxxxxxxxx");
}

void TestFaceLabels::barNumbersDoNotTouch()
{
    QFETCH(QString, word);
    window->setPower(true);
    QStringList faults;
    for (int index = 0; index < 12; ++index) {
        chooseTonic(index, word);
        const auto check = [&](const degree_marks::Marks& marks, const char* side, qreal barWidth) {
            QMap<int, int> ends; // of each number, by where it begins
            for (const degree_marks::Mark& mark : marks) {
                const QRectF ink = painted::boundsOf(window->degreeDigits(mark.number));
                ends[mark.x] = mark.x + static_cast<int>(ink.right());
                if (mark.x < 0 || ends[mark.x] > barWidth)
                    faults << QStringLiteral("%1 leaves its bar").arg(mark.number);
            }
            int last = -1;
            for (auto it = ends.constBegin(); it != ends.constEnd(); ++it) {
                if (it.key() < last)
                    faults << QStringLiteral("%1 bar, tonic %2: number at %3 begins before %4")
                                  .arg(QLatin1String(side))
                                  .arg(index)
                                  .arg(it.key())
                                  .arg(last);
                last = it.value();
            }
        };
        check(power()->marksIn(), "in", power()->anchorBarIn->boundingRect().width());
        check(power()->marksOut(), "out", power()->anchorBarOut->boundingRect().width());
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

// "-3" and "4" stand in the windows of their plates.
void TestFaceLabels::anchorNumbersFit()
{
    window->setPower(true);
    const auto check = [](const QGraphicsItemGroup* anchor) {
        const QList<QGraphicsItem*> pictures = anchor->childItems();
        const auto inkOf = [](const QGraphicsItem* item) {
            return item->mapRectToScene(
                painted::boundsOf(qgraphicsitem_cast<const QGraphicsPixmapItem*>(item)->pixmap()));
        };
        QVERIFY2(inkOf(pictures.at(0)).adjusted(2, 2, -2, -2).contains(inkOf(pictures.at(1))),
                 qPrintable(key_roles::anchorName(anchor)));
    };
    for (const auto& group :
         {power()->anchorsInLeft, power()->anchorsInRight, power()->anchorsOutLeft, power()->anchorsOutRight})
        for (const QGraphicsItemGroup* anchor : group)
            check(anchor);
    check(power()->mainAnchorIn);
    check(power()->mainAnchorOut);
}

void TestFaceLabels::squareNumbersFit()
{
    const QRect pane(1, 1, 13, 8);
    for (int number = 1; number <= 12; ++number) {
        const QPixmap digits = window->getDigitalPix(MainWnd::digit_square, number);
        QVERIFY2(digits.width() / digits.devicePixelRatio() <= pane.width(),
                 qPrintable(QString::number(number)));
        QVERIFY(digits.height() / digits.devicePixelRatio() <= pane.height());
    }
}

/// The ink of a plate's text, in the plate's own pixels.
QRectF TestFaceLabels::inkOfPlate(LibraryButton::Code code, const QString& text) const
{
    constexpr int dense = 3;
    LibraryButton& plate = button(code);
    const auto paint = [&](const QString& words) {
        QImage picture((plate.boundingRect().size() * dense).toSize(), QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        painter.scale(dense, dense);
        plate.setText(words);
        const QStyleOptionGraphicsItem option;
        plate.paint(&painter, &option, nullptr);
        return picture;
    };
    const QRect box = contrast::read(paint(text), paint(QString())).box;
    return {QPointF(box.topLeft()) / dense, QSizeF(box.size()) / dense};
}

// The names of the factory, and the widest that a user may give. A text that is cut off ends on the edge.
void TestFaceLabels::platesHoldEveryShortName()
{
    enter(QStringLiteral("library"));
    QStringList faults;
    const auto check = [&](const QString& text, LibraryButton::Code code) {
        const QRectF ink = inkOfPlate(code, text), room = button(code).boundingRect().adjusted(1, 1, -1, -1);
        if (!text.isEmpty() && !room.contains(ink))
            faults << QStringLiteral("'%1' has its ink from %2 to %3 of %4")
                          .arg(text.left(20))
                          .arg(ink.left())
                          .arg(ink.right())
                          .arg(room.right() + 1);
    };
    const auto checkPair = [&](const QString& first, const QString& second) {
        check(first, LibraryButton::edit_abbr1);
        check(second, LibraryButton::edit_abbr2);
        check((first + QLatin1Char(' ') + second).trimmed(), LibraryButton::scale_label);
    };
    for (std::size_t block = 0; block < resetScaleData.size(); ++block)
        for (int row = 0; row < numResetScales[block]; ++row) {
            const scale_data& scale = resetScaleData[block][static_cast<std::size_t>(row)];
            checkPair(scale.abbr1, scale.abbr2);
        }
    for (char letter = '!'; letter <= 'z'; ++letter) {
        QString name;
        while (name.size() < 7 && library_name::fits(name + QLatin1Char(letter)))
            name += QLatin1Char(letter);
        checkPair(name, name);
    }
    checkPair(tooLong(300), tooLong(300));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFaceLabels::rowsAreNotCutInHeight_data()
{
    QTest::addColumn<QString>("state");
    QTest::newRow("ports") << QStringLiteral("ports");
    QTest::newRow("library") << QStringLiteral("library");
}

// Whole rows only, and each as high as its font.
void TestFaceLabels::rowsAreNotCutInHeight()
{
    QFETCH(QString, state);
    enter(state);
    QList<QListWidget*> lists{screen().inPortList, screen().outPortList};
    if (state == QLatin1String("library"))
        lists = {&categoryList(), &scaleList()};
    for (const QListWidget* list : lists) {
        const QRect pane = list->viewport()->rect();
        int cut = 0;
        for (int row = 0; row < list->count(); ++row) {
            const QRect place = list->visualItemRect(list->item(row));
            QVERIFY(QFontMetrics(list->font()).ascent() + QFontMetrics(list->font()).descent() <=
                    place.height());
            const QRect shown = place & pane;
            cut = qMax(cut, shown.isEmpty() ? 0 : place.height() - shown.height());
            QVERIFY(place.width() <= pane.width());
        }
        QVERIFY2(list->count() > 5, qPrintable(list->accessibleName()));
        QVERIFY2(
            cut == 0,
            qPrintable(
                QStringLiteral("%1: %2 pixels of a row are cut off").arg(list->accessibleName()).arg(cut)));
    }
}

void TestFaceLabels::dialogsHoldTheirTexts_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"alert", "change", "add", "edit"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestFaceLabels::dialogsHoldTheirTexts()
{
    QFETCH(QString, kind);
    enter(kind);
    for (const QPushButton* each : dialog->findChildren<QPushButton*>()) {
        const QFontMetrics metrics(each->font());
        QVERIFY2(metrics.horizontalAdvance(each->text()) <= each->width() - 8, qPrintable(each->text()));
        QVERIFY(metrics.height() <= each->height() - 4);
    }
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        const int wanted =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        QVERIFY2(wanted <= label->height(), qPrintable(label->text()));
        QVERIFY2(label->wordWrap() || label->sizeHint().width() <= label->width(), qPrintable(label->text()));
    }
    for (const QLineEdit* line : dialog->findChildren<QLineEdit*>())
        QVERIFY(QFontMetrics(line->font()).height() <= line->height() - 4);
}

void TestFaceLabels::fillLibraryWithLongNames() const
{
    const QString word = QStringLiteral("xoxoxxoxoxox");
    const scale_data record{word, tooLong(300), tooLong(300),
                            tooLong(3000) + QStringLiteral("\nsecond line\t<b>bold</b>"), tooLong(3000)};
    library().setScaleData(word, record, DatabaseLibrary::LibraryRole);
    library().insertCategory(tooLong(3000));
    library().appendScaleToCategory(tooLong(3000), word);
    for (HeaderItem* flag : qAsConst(presets().headers))
        flag->record.nameTonic = tooLong(50);
    fillPorts({tooLong(500), QStringLiteral("two\nlines"), QStringLiteral("<h1>title</h1>")});
    screen().refreshBrowser();
    window->checkScaleMatches(true);
}

// Of what is too long the beginning shows; nothing grows, nothing moves, nothing scrolls sideways.
void TestFaceLabels::hostileNamesStayInTheirBoxes()
{
    enter(QStringLiteral("library"));
    const auto placesOf = [this] {
        QMap<QString, QRectF> places;
        for (const FacePart& part : face_parts::all(*window, nullptr))
            places[part.name] = part.painted;
        return places;
    };
    const auto before = placesOf();
    fillLibraryWithLongNames();
    const auto after = placesOf();
    for (auto it = before.constBegin(); it != before.constEnd(); ++it)
        if (it.key() != QLatin1String("number square") && !it.key().startsWith(QLatin1String("anchor")))
            QVERIFY2(after.value(it.key()) == it.value(), qPrintable(it.key()));
    for (const QListWidget* list :
         {static_cast<QListWidget*>(&categoryList()), static_cast<QListWidget*>(&scaleList()),
          screen().inPortList, screen().outPortList}) {
        QVERIFY(list->count() > 0);
        QCOMPARE(list->textElideMode(), Qt::ElideRight);
        QVERIFY(!list->wordWrap());
        for (int row = 0; row < list->count(); ++row) {
            QVERIFY2(list->visualItemRect(list->item(row)).width() <= list->viewport()->width(),
                     qPrintable(list->accessibleName()));
            QCOMPARE(list->visualItemRect(list->item(row)).height(),
                     list->visualItemRect(list->item(0)).height());
        }
    }
    QVERIFY(!view().description->horizontalScrollBar()->isVisible());
}

// The page shows whole lines as it opens, and a scroll bar where it is longer.
void TestFaceLabels::descriptionEndsInWholeLines()
{
    enter(QStringLiteral("library"));
    const DescriptionEditor& page = *view().description;
    int last = 0;
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next())
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QRectF line = block.layout()->lineAt(i).rect().translated(block.layout()->position());
            if (line.top() + 2 < page.viewport()->height()) // what lies above its letters may show
                last = qCeil(line.bottom());
        }
    QVERIFY(last > 20);
    QVERIFY2(last <= page.viewport()->height() + 1,
             qPrintable(QStringLiteral("line ends at %1 of %2").arg(last).arg(page.viewport()->height())));
}

// Between the buttons on both sides.
void TestFaceLabels::creditLinesFit()
{
    enter(QStringLiteral("credits"));
    const int room = form().buttonExport->x() - form().buttonCredits->geometry().right() - 2;
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    const QFontMetrics metrics(font);
    QVERIFY(screen().creditLines.size() > 5);
    for (const QString& line : qAsConst(screen().creditLines))
        QVERIFY2(metrics.horizontalAdvance(line) <= room, qPrintable(line));
}

QTEST_MAIN(TestFaceLabels)
#include "test_face_labels.moc"
