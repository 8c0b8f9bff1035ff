// What is written can be read: every text's ink against the worst of its ground.

#include "FaceFixture.h"
#include "FaceTexts.h"
#include "contrast.h"

#include "keys/StageMenu.h"

#include <QLineEdit>
#include <QMenu>
#include <QStyleOptionViewItem>
#include <QToolTip>

namespace {

constexpr int dense = 3; ///< device pixels of a logical one

QString inWords(const contrast::Reading& reading)
{
    return QStringLiteral("ink %1 on %2: %3")
        .arg(QColor(reading.ink).name(), QColor(reading.worstGround).name())
        .arg(reading.worst, 0, 'f', 2);
}

/// Texts whose ink is given, and why it may be what it is. The words of a name that tell of one.
struct Given
{
    const char* words;
    const char* reason;
};

const Given givenInks[] = {
    {"abbr1", "red marks the field of a wrong short name; its thicker frame and the message tell of it too"},
    {"max 5-7", "the message is as red as the field it speaks of"},
};

bool isGiven(const FaceText& text)
{
    return std::any_of(std::begin(givenInks), std::end(givenInks),
                       [&text](const Given& row) { return text.name.contains(QLatin1String(row.words)); });
}

/// A caption that is painted into a picture, and where.
struct Caption
{
    const char* name;
    const char* picture; ///< below Resources/, of two pixels a logical one
    const char* over;    ///< laid upon it, or null
    QRect box;           ///< logical; it begins beside the letters
};

const Caption captions[] = {
    {"OUTPUT, off", "Background/BG_off@2x", "Background/BG_t_off@2x", {26, 150, 60, 8}},
    {"OUTPUT, on", "Background/BG_off@2x", "Background/BG_t_on-CM@2x", {26, 150, 60, 8}},
    {"INPUT, off", "Background/BG_off@2x", "Background/BG_t_off@2x", {26, 286, 48, 8}},
    {"INPUT, on", "Background/BG_off@2x", "Background/BG_t_on-CM@2x", {26, 286, 48, 8}},
    {"SORVANE, off", "Background/BG_off@2x", "Background/BG_t_off@2x", {860, 150, 66, 8}},
    {"SORVANE, on", "Background/BG_off@2x", "Background/BG_t_on-CM@2x", {860, 150, 66, 8}},
    {"TONIC, off", "Background/BG_off@2x", "Background/BG_t_off@2x", {33, 256, 44, 9}},
    {"TONIC, on", "Background/BG_off@2x", "Background/BG_t_on-CM@2x", {33, 256, 44, 9}},
    {"SCALE, off", "Background/BG_off@2x", "Background/BG_t_off@2x", {797, 256, 46, 9}},
    {"SCALE, on", "Background/BG_off@2x", "Background/BG_t_on-CM@2x", {797, 256, 46, 9}},
    {"CATEGORIES", "LibraryScreen/LibBGScene@2x", nullptr, {5, 7, 84, 10}},
    {"SCALES", "LibraryScreen/LibBGScene@2x", nullptr, {161, 7, 52, 10}},
    {"LIBRARY, closed", "LibraryScreen/Buttons/LibAccessOpen_neutral@2x", nullptr, {3, 7, 36, 5}},
    {"LIBRARY, closed, pressed", "LibraryScreen/Buttons/LibAccessOpen_active@2x", nullptr, {3, 7, 36, 5}},
    {"LIBRARY, open", "LibraryScreen/Buttons/LibAccessClose_neutral@2x", nullptr, {3, 7, 36, 5}},
    {"LIBRARY, open, pressed", "LibraryScreen/Buttons/LibAccessClose_active@2x", nullptr, {3, 7, 36, 5}},
    {"mark of a stranger", "LibraryScreen/LibExclamationMark@2x", nullptr, {3, 3, 8, 8}},
};

/// A picture pixel by pixel: its name tells a reader that it has two a logical one.
QImage pixelsOf(const char* name)
{
    QImage picture(QStringLiteral(":/Resources/%1.png").arg(QLatin1String(name)));
    picture.setDevicePixelRatio(1);
    return picture;
}

QImage denseBy2(const char* name, const QColor& ground)
{
    const QImage picture = pixelsOf(name);
    QImage result(picture.size(), QImage::Format_RGB32);
    result.fill(ground);
    QPainter(&result).drawImage(0, 0, picture);
    return result;
}

} // namespace

class TestFaceContrast : public FaceFixture
{
    Q_OBJECT

private slots:
    void knownPairs_data();
    void knownPairs();
    void readingFindsInkAndGround();
    void textsCanBeRead_data() { addStates(); }
    void textsCanBeRead();
    void buttonsCanBeReadInEveryState_data();
    void buttonsCanBeReadInEveryState();
    void listRowsCanBeReadInEveryState();
    void dialogCanBeReadBesideAnError();
    void selectionInFieldsCanBeRead();
    void menuCanBeRead();
    void toolTipsCanBeRead();
    void captionsCanBeRead_data();
    void captionsCanBeRead();
    void tonicLettersCanBeRead();

private:
    /// Those among the texts that cannot be read, after they have been taken away.
    QStringList unreadable(const QVector<FaceText>& texts);
};

void TestFaceContrast::knownPairs_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("ratio");
    QTest::newRow("black, white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("the same") << QColor(0x57, 0x54, 0x50) << QColor(0x57, 0x54, 0x50) << 1.0;
    QTest::newRow("the darkest grey that cannot be read on white")
        << QColor(0x77, 0x77, 0x77) << QColor(Qt::white) << 4.48;
    QTest::newRow("the lightest one that can") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
    QTest::newRow("red, white") << QColor(Qt::red) << QColor(Qt::white) << 4.00;
    QTest::newRow("blue, white") << QColor(Qt::blue) << QColor(Qt::white) << 8.59;
    QTest::newRow("yellow, black") << QColor(Qt::yellow) << QColor(Qt::black) << 19.56;
}

void TestFaceContrast::knownPairs()
{
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    QFETCH(double, ratio);
    QVERIFY(qAbs(contrast::ratio(one.rgb(), other.rgb()) - ratio) < 0.01);
    QCOMPARE(contrast::ratio(other.rgb(), one.rgb()), contrast::ratio(one.rgb(), other.rgb()));
}

void TestFaceContrast::readingFindsInkAndGround()
{
    QImage ground(20, 10, QImage::Format_RGB32);
    ground.fill(Qt::white);
    ground.setPixel(8, 5, qRgb(90, 90, 90));  // within the text's box: the worst of its ground
    ground.setPixel(18, 5, qRgb(40, 40, 40)); // beside it
    QImage text = ground;
    text.setPixel(6, 4, qRgb(20, 20, 20));
    text.setPixel(7, 4, qRgb(180, 180, 180)); // the soft edge of a stroke
    text.setPixel(9, 6, qRgb(20, 20, 20));
    const contrast::Reading reading = contrast::read(text, ground);
    QCOMPARE(reading.box, QRect(6, 4, 4, 3));
    QCOMPARE(reading.ink, qRgb(20, 20, 20));
    QCOMPARE(reading.worstGround, qRgb(90, 90, 90));
    QCOMPARE(contrast::read(ground, ground).box, QRect());
    text.setPixel(4, 5, qRgb(230, 230, 230)); // beside the letters
    const contrast::Reading inPicture = contrast::readInPicture(text, QRect(4, 3, 9, 5));
    QCOMPARE(inPicture.ink, qRgb(20, 20, 20));
    QCOMPARE(inPicture.worstGround, qRgb(230, 230, 230));
    QCOMPARE(contrast::laidOn(QColor(0, 0, 0, 0), qRgb(9, 8, 7)), qRgb(9, 8, 7));
    QCOMPARE(contrast::laidOn(QColor(1, 2, 3), qRgb(9, 8, 7)), qRgb(1, 2, 3));
}

QStringList TestFaceContrast::unreadable(const QVector<FaceText>& texts)
{
    const auto [with, without] = face_texts::withAndWithout(texts, *window, dense);
    QStringList faults;
    for (const FaceText& text : texts) {
        const QRect box = face_texts::scaled(text.box, dense);
        const contrast::Reading reading = contrast::read(with.copy(box), without.copy(box));
        if (reading.box.isEmpty())
            faults << text.name + QStringLiteral(": no ink");
        else if (reading.worst < contrast::readable)
            faults << text.name + QStringLiteral(": ") + inWords(reading);
    }
    return faults;
}

void TestFaceContrast::textsCanBeRead()
{
    QFETCH(QString, state);
    enter(state);
    for (int i = 0; state == QLatin1String("credits") && i < 60; ++i)
        QVERIFY(QMetaObject::invokeMethod(&screen(), "moveCreditsText"));
    const auto texts = face_texts::all(*window, dialog.get());
    QVERIFY(texts.size() >= (dialog ? 3 : 6));
    const QStringList faults = unreadable(texts);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFaceContrast::buttonsCanBeReadInEveryState_data()
{
    addButtonLooks();
}

void TestFaceContrast::buttonsCanBeReadInEveryState()
{
    QFETCH(QString, how);
    for (QPushButton* button : sixButtons()) {
        show(*button, how);
        QVector<FaceText> texts;
        const auto all = face_texts::all(*window, nullptr);
        for (const FaceText& text : all)
            if (text.name == button->objectName())
                texts << text;
        QCOMPARE(texts.size(), 1);
        const QStringList faults = unreadable(texts);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }
}

void TestFaceContrast::listRowsCanBeReadInEveryState()
{
    for (const char* state : {"ports", "library"}) {
        enter(QLatin1String(state));
        const bool ports = QLatin1String(state) == QLatin1String("ports");
        QList<QListWidget*> lists{&categoryList(), &scaleList()};
        if (ports)
            lists = {screen().inPortList, screen().outPortList};
        for (QListWidget* list : lists) {
            list->setFocus(Qt::TabFocusReason);
            const QPoint second = list->visualItemRect(list->item(1)).center();
            QHoverEvent hover(QEvent::HoverMove, second, QPoint());
            QMouseEvent move(QEvent::MouseMove, second, list->viewport()->mapToGlobal(second), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(list->viewport(), &move);
            QCoreApplication::sendEvent(list->viewport(), &hover);
            const auto rows = face_texts::rowsOf(*list, *window);
            QVERIFY(rows.size() >= 5);
            const QStringList faults = unreadable(rows);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
        }
    }
}

// It moves and hides nothing of the rest.
void TestFaceContrast::dialogCanBeReadBesideAnError()
{
    enter(QStringLiteral("add"));
    auto* abbr = dialog->findChild<QLineEdit*>(QStringLiteral("abbr1"));
    abbr->setFocus();
    abbr->selectAll();
    QTest::keyClicks(abbr, QStringLiteral("$"));
    auto texts = face_texts::all(*window, dialog.get());
    const bool told = std::any_of(texts.begin(), texts.end(), [](const FaceText& text) {
        return text.name.contains(QLatin1String("max 5-7"));
    });
    QVERIFY(told);
    texts.erase(std::remove_if(texts.begin(), texts.end(), isGiven), texts.end());
    QVERIFY(texts.size() > 5);
    const QStringList faults = unreadable(texts);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFaceContrast::selectionInFieldsCanBeRead()
{
    enter(QStringLiteral("add"));
    for (const QLineEdit* field : dialog->findChildren<QLineEdit*>()) {
        const double selected = contrast::ratio(field->palette().color(QPalette::HighlightedText).rgb(),
                                                field->palette().color(QPalette::Highlight).rgb());
        QVERIFY2(selected >= contrast::readable,
                 qPrintable(QStringLiteral("%1, selected: %2").arg(field->objectName()).arg(selected)));
    }
}

void TestFaceContrast::menuCanBeRead()
{
    whenMenuIsUp([](QMenu& menu) {
        menu.setActiveAction(menu.actions().first());
        const QImage with = face_texts::render(menu, dense);
        const auto actions = menu.actions();
        QVector<QRect> places;
        for (QAction* action : actions)
            places << menu.actionGeometry(action);
        menu.setStyleSheet(menu.styleSheet() +
                           QStringLiteral("QMenu::item, QMenu::item:selected {color: transparent}"));
        const QImage without = face_texts::render(menu, dense);
        QCOMPARE(without.size(), with.size());
        for (int i = 0; i < actions.size(); ++i) {
            if (actions[i]->isSeparator() || !actions[i]->isEnabled())
                continue;
            const QRect box = face_texts::scaled(QRectF(places[i]).adjusted(10, 1, -10, -1), dense);
            const contrast::Reading reading = contrast::read(with.copy(box), without.copy(box));
            QVERIFY2(!reading.box.isEmpty() && reading.worst >= contrast::readable,
                     qPrintable(QStringLiteral("item %1: %2").arg(i).arg(inWords(reading))));
        }
    });
    QTimer::singleShot(0, this, [this] { presets().menu->popup(window->mapToGlobal(QPoint(300, 250))); });
    QTRY_COMPARE(seen, 1);
}

void TestFaceContrast::toolTipsCanBeRead()
{
    const QPalette tips = QToolTip::palette();
    QVERIFY(contrast::ratio(tips.color(QPalette::ToolTipText).rgb(),
                            tips.color(QPalette::ToolTipBase).rgb()) >= contrast::readable);
}

void TestFaceContrast::captionsCanBeRead_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < std::size(captions); ++i)
        QTest::addRow("%s", captions[i].name) << static_cast<int>(i);
}

void TestFaceContrast::captionsCanBeRead()
{
    QFETCH(int, row);
    const Caption& caption = captions[row];
    QImage picture = denseBy2(caption.picture, QColor(200, 203, 192));
    QVERIFY(!picture.isNull());
    if (caption.over)
        QPainter(&picture).drawImage(0, 0, pixelsOf(caption.over));
    const contrast::Reading reading = contrast::readInPicture(picture, face_texts::scaled(caption.box, 2));
    QVERIFY2(reading.worst >= contrast::readable, qPrintable(inWords(reading)));
}

// On keys that are idle and on the one that is lit.
void TestFaceContrast::tonicLettersCanBeRead()
{
    const QImage sheet = denseBy2("KeyboardTonic@2x", Qt::black);
    for (const int row : {0, 1})
        for (int key = 0; key < 7; ++key) {
            const QRectF letter(key * 17 + 2, row * 60 + 45, 12, 8);
            const contrast::Reading reading = contrast::readInPicture(sheet, face_texts::scaled(letter, 2));
            QVERIFY2(
                reading.worst >= contrast::readable,
                qPrintable(QStringLiteral("row %1, letter %2: %3").arg(row).arg(key).arg(inWords(reading))));
        }
}

QTEST_MAIN(TestFaceContrast)
#include "test_face_contrast.moc"
