// Each state is told by more than its colour: two states of a part differ in a grey-scale picture, and the
// colours that carry a meaning differ for eyes of every kind.

#include "FaceFixture.h"
#include "colour_vision.h"
#include "state_pairs.h"
#include "tools/pictures/palette.h"

using colour_vision::Eyes;
using namespace state_pairs;

namespace {

constexpr double farApart = 20; ///< of two colours in L*a*b*

/// The pixels of a part: what is not its ground in one of its two pictures.
int partSize(const QImage& one, const QImage& other, const QColor& ground)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += one.pixelColor(x, y) != ground || other.pixelColor(x, y) != ground;
    return count;
}

int differing(const QImage& one, const QImage& other, int levels)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            count += qAbs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) >= levels;
    return count;
}

/// The x about which the hard lines of a switch's knob stand: the middle of the steep steps of grey.
double gripPlace(const QImage& image)
{
    constexpr int steep = 35;
    double sum = 0;
    int count = 0;
    for (int y = 6; y <= 8; ++y)
        for (int x = 3; x < 37; ++x)
            if (qAbs(qGray(image.pixel(x, y)) - qGray(image.pixel(x - 1, y))) >= steep) {
                sum += x - 0.5;
                ++count;
            }
    return count ? sum / count : -1;
}

double meanGrey(const QImage& image, const QRect& area)
{
    double sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            sum += qGray(image.pixel(x, y));
    return sum / (area.width() * area.height());
}

} // namespace

class TestFaceGrey : public FaceFixture
{
    Q_OBJECT

private slots:
    void visionModelKnowsWhatIsKnown();
    void pairsDifferInGrey_data();
    void pairsDifferInGrey();
    void keysDifferInGrey_data();
    void keysDifferInGrey();
    void pressedKeyReachesDown_data();
    void pressedKeyReachesDown();
    void knobTellsByItsPlace_data();
    void knobTellsByItsPlace();
    void litLampIsBrighter();
    void listRowsDifferInGrey();
    void panelWakesInGrey();
    void coloursDifferForEveryEye_data();
    void coloursDifferForEveryEye();
    void lightsDifferInLightness();

private:
    /// The window as it shows now.
    QImage grab() const { return window->grab().toImage().convertToFormat(QImage::Format_RGB32); }
};

// Greys stay grey; the known confusions of each kind come close together, and far pairs stay far.
void TestFaceGrey::visionModelKnowsWhatIsKnown()
{
    for (const Eyes eyes : {Eyes::protanopia, Eyes::deuteranopia, Eyes::tritanopia})
        for (const int grey : {0, 128, 255}) {
            const QRgb colour = qRgb(grey, grey, grey);
            QVERIFY(colour_vision::distance(colour_vision::seenBy(eyes, colour), colour) < 1);
        }
    QVERIFY(qAbs(colour_vision::distance(qRgb(0, 0, 0), qRgb(255, 255, 255)) - 100) < 0.1);
    QVERIFY(qAbs(colour_vision::distance(qRgb(255, 0, 0), qRgb(0, 255, 0)) - 170.6) < 0.5);
    const auto between = [](Eyes eyes, QRgb one, QRgb other) {
        return colour_vision::distance(colour_vision::seenBy(eyes, one), colour_vision::seenBy(eyes, other));
    };
    const QRgb brick = qRgb(190, 90, 50), moss = qRgb(120, 120, 40), teal = qRgb(0, 150, 150),
               sky = qRgb(0, 140, 215);
    QVERIFY(between(Eyes::deuteranopia, brick, moss) < 0.4 * between(Eyes::all_cones, brick, moss));
    QVERIFY(between(Eyes::tritanopia, teal, sky) < 0.7 * between(Eyes::all_cones, teal, sky));
    QVERIFY(between(Eyes::protanopia, qRgb(0, 0, 255), qRgb(255, 255, 0)) > 100);
}

void TestFaceGrey::pairsDifferInGrey_data()
{
    QTest::addColumn<QStringList>("one");
    QTest::addColumn<QStringList>("other");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<int>("levels");
    QTest::addColumn<double>("share");
    for (const auto& pairs : {ofFlags(), ofPower(), ofSwitches(), ofButtons()})
        for (const Pair& pair : pairs)
            QTest::addRow("%s: %s, %s", qPrintable(pair.one.layers.first()), pair.one.name, pair.other.name)
                << pair.one.layers << pair.other.layers << pair.one.ground << pair.wanted.levels
                << pair.wanted.share;
}

void TestFaceGrey::pairsDifferInGrey()
{
    QFETCH(QStringList, one);
    QFETCH(QStringList, other);
    QFETCH(QColor, ground);
    QFETCH(int, levels);
    QFETCH(double, share);
    const QImage a = pictureOf(Look{"", one, ground}), b = pictureOf(Look{"", other, ground});
    QVERIFY(!a.isNull() && a.size() == b.size());
    const double found = double(differing(a, b, levels)) / partSize(a, b, ground);
    QVERIFY2(found >= share, qPrintable(QStringLiteral("%1 of the part differ by %2 levels, wanted are %3")
                                            .arg(found, 0, 'f', 3)
                                            .arg(levels)
                                            .arg(share)));
}

void TestFaceGrey::keysDifferInGrey_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < ofKeys().size(); ++i)
        QTest::addRow("%s key: %s, %s", ofKeys()[i].black ? "black" : "white", ofKeys()[i].one.name,
                      ofKeys()[i].other.name)
            << static_cast<int>(i);
}

void TestFaceGrey::keysDifferInGrey()
{
    QFETCH(int, row);
    const KeyPair& pair = ofKeys()[static_cast<std::size_t>(row)];
    QVector<KeyShape> shapes{KeyShape::bAndE, KeyShape::cAndF, KeyShape::dGAndA, KeyShape::full};
    if (pair.black)
        shapes = {KeyShape::black};
    for (const KeyShape shape : qAsConst(shapes)) {
        const QImage a = pictureOf(pair.one, shape), b = pictureOf(pair.other, shape);
        const double found = double(differing(a, b, plain.levels)) / (a.width() * a.height());
        QVERIFY2(found >= plain.share,
                 qPrintable(QStringLiteral("shape %1: %2 of the key differ by %3 levels, wanted are %4")
                                .arg(int(shape))
                                .arg(found, 0, 'f', 3)
                                .arg(plain.levels)
                                .arg(plain.share)));
    }
}

void TestFaceGrey::pressedKeyReachesDown_data()
{
    QTest::addColumn<int>("sheet");
    for (const KeySheet sheet : {KeySheet::plain, KeySheet::in, KeySheet::out, KeySheet::deactive})
        QTest::addRow("%s", qPrintable(key_pictures::pathOf(sheet))) << static_cast<int>(sheet);
}

// The front of a white key at rest is its lip, darker than its face; the face of a pressed one covers it. Its
// back lies in the shade of the case.
void TestFaceGrey::pressedKeyReachesDown()
{
    QFETCH(int, sheet);
    const auto key = [sheet](KeyCell cell) {
        return pictureOf(KeyLook{"", static_cast<KeySheet>(sheet), cell, KeyShine::none}, KeyShape::full);
    };
    const QImage up = key(KeyCell::idle), down = key(KeyCell::pressed);
    const QRect lip(4, 93, 9, 4), face(4, 80, 9, 8), back(4, 1, 9, 4);
    QVERIFY2(meanGrey(up, lip) < meanGrey(up, face) - plain.levels,
             qPrintable(
                 QStringLiteral("at rest: lip %1, face %2").arg(meanGrey(up, lip)).arg(meanGrey(up, face))));
    QVERIFY2(
        meanGrey(down, lip) > meanGrey(up, lip) + 12,
        qPrintable(
            QStringLiteral("lip at rest %1, pressed %2").arg(meanGrey(up, lip)).arg(meanGrey(down, lip))));
    QVERIFY2(
        meanGrey(down, back) < meanGrey(up, back) - 12,
        qPrintable(
            QStringLiteral("back at rest %1, pressed %2").arg(meanGrey(up, back)).arg(meanGrey(down, back))));
}

void TestFaceGrey::knobTellsByItsPlace_data()
{
    QTest::addColumn<QString>("row");
    QTest::newRow("tonic") << QStringLiteral("Tonic");
    QTest::newRow("scale") << QStringLiteral("Scale");
}

// Left, middle, right: told by the grip's lines, which alone change from column to column.
void TestFaceGrey::knobTellsByItsPlace()
{
    QFETCH(QString, row);
    const auto gripOf = [&row](const char* state) {
        return gripPlace(pictureOf(Look{"", toggle(qPrintable(row), state), palette::metal}));
    };
    const double left = gripOf("Off"), middle = gripOf(nullptr), right = gripOf("On");
    const QString places = QStringLiteral("off %1, neutral %2, on %3").arg(left).arg(middle).arg(right);
    QVERIFY2(left > 2 && left < 16, qPrintable(places));
    QVERIFY2(qAbs(middle - 20) < 4, qPrintable(places));
    QVERIFY2(right > 24 && right < 38, qPrintable(places));
}

void TestFaceGrey::litLampIsBrighter()
{
    for (int type = 1; type <= 5; ++type) {
        const QImage idle = pictureOf(Look{"", flag(type, {"deactive"}), rail}),
                     active = pictureOf(Look{"", flag(type, {"active"}), rail});
        const QRect lamp(type == 5 ? 22 : 13, 12, 10, 4);
        QVERIFY2(meanGrey(active, lamp) > meanGrey(idle, lamp) + 60,
                 qPrintable(QStringLiteral("flag %1: idle %2, active %3")
                                .arg(type)
                                .arg(meanGrey(idle, lamp))
                                .arg(meanGrey(active, lamp))));
    }
    const QRect lens(5, 6, 9, 18);
    const QImage dark = pictureOf(Look{"", state_pairs::power({"Off"}), palette::graphite}),
                 bright = pictureOf(Look{"", state_pairs::power({"On"}), palette::graphite});
    QVERIFY2(meanGrey(bright, lens) > meanGrey(dark, lens) + 40,
             qPrintable(
                 QStringLiteral("lens off %1, on %2").arg(meanGrey(dark, lens)).arg(meanGrey(bright, lens))));
}

// A row that is not selected, one under the pointer, the selected one; of both kinds of list.
void TestFaceGrey::listRowsDifferInGrey()
{
    for (const char* state : {"ports", "library"}) {
        enter(QLatin1String(state));
        QListWidget& list = QLatin1String(state) == QLatin1String("ports")
                                ? *screen().inPortList
                                : static_cast<QListWidget&>(categoryList());
        list.clearFocus();
        const auto rowPicture = [&](int row) {
            const QRect place = list.visualItemRect(list.item(row))
                                    .translated(list.viewport()->mapTo(window.get(), QPoint()));
            return grab().copy(place.adjusted(list.width() / 2, 1, -8, -1));
        };
        const int chosen = list.currentRow() >= 0 && list.item(list.currentRow())->isSelected()
                               ? list.currentRow()
                               : list.row(list.selectedItems().value(0));
        int other = chosen;
        while (list.item(other)->isSelected())
            ++other;
        const QImage idle = rowPicture(other), selected = rowPicture(chosen);
        QMouseEvent move(QEvent::MouseMove, list.visualItemRect(list.item(other)).center(), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QHoverEvent hover(QEvent::HoverMove, list.visualItemRect(list.item(other)).center(), QPoint());
        QCoreApplication::sendEvent(list.viewport(), &move);
        QCoreApplication::sendEvent(list.viewport(), &hover);
        const QImage hovered = rowPicture(other);
        const double area = idle.width() * idle.height();
        const auto share = [area](const QImage& a, const QImage& b, int levels) {
            return differing(a, b, levels) / area;
        };
        QVERIFY2(share(idle, selected, plain.levels) > 0.5, state);
        QVERIFY2(share(hovered, selected, plain.levels) > 0.5, state);
        QVERIFY2(share(idle, hovered, soft.levels) > soft.share,
                 qPrintable(QStringLiteral("%1: hover differs on %2")
                                .arg(QLatin1String(state))
                                .arg(share(idle, hovered, soft.levels))));
    }
}

// The rods, the selectors and the flags tell that the power is on.
void TestFaceGrey::panelWakesInGrey()
{
    enter(QStringLiteral("off"));
    const QImage asleepNow = grab();
    window->setPower(true);
    const QImage awakeNow = grab();
    const QVector<QPair<const char*, QRect>> places{
        {"tonic selector", {35, 185, 119, 60}}, {"scale selector", {799, 185, 119, 60}},
        {"output rail", {36, 22, 880, 26}},     {"header ground", {36, 298, 880, 48}},
        {"tonic switch", {114, 253, 40, 16}},   {"scale switch", {878, 253, 40, 16}}};
    for (const auto& place : places) {
        const QImage a = asleepNow.copy(place.second), b = awakeNow.copy(place.second);
        const double found = double(differing(a, b, plain.levels)) / (a.width() * a.height());
        QVERIFY2(found >= plain.share,
                 qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(place.first)).arg(found)));
    }
}

void TestFaceGrey::coloursDifferForEveryEye_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::newRow("input, output") << palette::blue << palette::amber;
    QTest::newRow("their light") << palette::blueLight << palette::amberLight;
    QTest::newRow("their shade") << palette::blueDark << palette::amberDark;
    QTest::newRow("preset idle, active") << palette::presetIdle << palette::presetActive;
    QTest::newRow("input, active preset") << palette::blue << palette::presetActive;
    const auto middleOf = [](KeySheet sheet) {
        return pictureOf(KeyLook{"", sheet, KeyCell::pressed, KeyShine::none}, KeyShape::full)
            .pixelColor(8, 70);
    };
    QTest::newRow("played key, sounding key") << middleOf(KeySheet::in) << middleOf(KeySheet::out);
}

void TestFaceGrey::coloursDifferForEveryEye()
{
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    for (const Eyes eyes : {Eyes::all_cones, Eyes::protanopia, Eyes::deuteranopia, Eyes::tritanopia}) {
        const double far = colour_vision::distance(colour_vision::seenBy(eyes, one.rgb()),
                                                   colour_vision::seenBy(eyes, other.rgb()));
        QVERIFY2(far >= farApart, qPrintable(QStringLiteral("%1 and %2, eyes %3: %4")
                                                 .arg(one.name(), other.name())
                                                 .arg(int(eyes))
                                                 .arg(far)));
    }
}

void TestFaceGrey::lightsDifferInLightness()
{
    const auto brightnessOf = [](KeySheet sheet) {
        return meanGrey(pictureOf(KeyLook{"", sheet, KeyCell::pressed, KeyShine::none}, KeyShape::full),
                        QRect(3, 40, 11, 40));
    };
    const double in = brightnessOf(KeySheet::in), out = brightnessOf(KeySheet::out);
    QVERIFY2(out > in + plain.levels, qPrintable(QStringLiteral("blue %1, amber %2").arg(in).arg(out)));
}

QTEST_MAIN(TestFaceGrey)
#include "test_face_grey.moc"
