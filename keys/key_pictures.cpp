#include "keys/key_pictures.h"

#include "keys/pictures.h"

#include <QCoreApplication>

#include <array>
#include <memory>

namespace key_pictures {
namespace {

constexpr std::size_t sheetCount = 5, shapeCount = 7, cellCount = 2, shineCount = 3;

//   sheet, 155 by 99:   0 10 19    36    53    70    87    104   121   138   154
//                      |##|##| full   | D G A     | C F A0    | B E       |
//                       id pr idle pr   idle pr     idle pr     idle pr
// Corners are inclusive. Column 19 belongs to the black pressed cell and to the full idle cell.
struct Cells
{
    QRect idle, pressed;
};

const std::array<Cells, shapeCount> cellTable = {{
    {{QPoint(121, 0), QPoint(137, 98)}, {QPoint(138, 0), QPoint(154, 98)}}, // bAndE
    {{QPoint(87, 0), QPoint(103, 98)}, {QPoint(104, 0), QPoint(120, 98)}},  // cAndF
    {{QPoint(53, 0), QPoint(69, 98)}, {QPoint(70, 0), QPoint(86, 98)}},     // dGAndA
    {{QPoint(19, 0), QPoint(35, 98)}, {QPoint(36, 0), QPoint(52, 98)}},     // full
    {{QPoint(87, 0), QPoint(103, 98)}, {QPoint(104, 0), QPoint(120, 98)}},  // lowest
    {{QPoint(0, 0), QPoint(9, 63)}, {QPoint(10, 0), QPoint(19, 63)}},       // black
    {QRect(), QRect()},                                                     // none
}};

const QRect shineRectangle(0, 0, 33, 43);

template <typename Enum>
constexpr std::size_t at(Enum value)
{
    return static_cast<std::size_t>(value);
}

QPixmap shinePicture(KeyShine shine)
{
    return pictures::load(shine == KeyShine::blue ? QStringLiteral(":/Resources/INPUTblueShine.png")
                                                  : QStringLiteral(":/Resources/OUTPUTyellowShine.png"));
}

using Crops = std::array<QPixmap, sheetCount * shapeCount * cellCount * shineCount>;

std::size_t slot(KeySheet sheet, KeyShape shape, KeyCell cell, KeyShine shine)
{
    return ((at(sheet) * shapeCount + at(shape)) * cellCount + at(cell)) * shineCount + at(shine);
}

void cropShape(Crops& crops, KeySheet sheet, KeyShape shape)
{
    for (const KeyCell cell : {KeyCell::idle, KeyCell::pressed}) {
        const QPixmap plain = pictures::crop(key_pictures::sheet(sheet), cellOf(shape, cell));
        for (const KeyShine shine : {KeyShine::none, KeyShine::blue, KeyShine::yellow})
            crops[slot(sheet, shape, cell, shine)] = withShine(plain, shine);
    }
}

// All at once, so that no note ever waits for a crop or a shine.
Crops makeCrops()
{
    Crops crops;
    for (const KeySheet sheet :
         {KeySheet::plain, KeySheet::in, KeySheet::out, KeySheet::deactive, KeySheet::learn})
        for (const KeyShape shape : {KeyShape::bAndE, KeyShape::cAndF, KeyShape::dGAndA, KeyShape::full,
                                     KeyShape::lowest, KeyShape::black})
            cropShape(crops, sheet, shape);
    return crops;
}

const Crops& allCrops()
{
    static std::unique_ptr<Crops> crops;
    if (!crops) {
        crops = std::make_unique<Crops>(makeCrops());
        qAddPostRoutine([] { crops.reset(); });
    }
    return *crops;
}

} // namespace

KeyShape shapeOf(const QString& name)
{
    const auto has = [&name](char letter) { return name.contains(QLatin1Char(letter)); };
    if (has('B') || has('E'))
        return KeyShape::bAndE;
    if (name == QLatin1String("C8"))
        return KeyShape::full;
    if (has('C') || has('F'))
        return KeyShape::cAndF;
    if (name == QLatin1String("A0"))
        return KeyShape::lowest;
    if (has('D') || has('G') || has('A'))
        return KeyShape::dGAndA;
    return name == QLatin1String("#") ? KeyShape::black : KeyShape::none;
}

QRect cellOf(KeyShape shape, KeyCell cell)
{
    const Cells& cells = cellTable[at(shape)];
    return cell == KeyCell::idle ? cells.idle : cells.pressed;
}

QRegion outlineOf(KeyShape shape)
{
    const QRect cell(QPoint(), cellOf(shape, KeyCell::idle).size());
    const QSize black = cellOf(KeyShape::black, KeyCell::idle).size();
    const QRect left(0, 0, black.width() / 2, black.height());
    const QRect right = left.translated(cell.width() - left.width(), 0);
    const bool notchedLeft = shape == KeyShape::bAndE || shape == KeyShape::dGAndA;
    const bool notchedRight =
        shape == KeyShape::cAndF || shape == KeyShape::lowest || shape == KeyShape::dGAndA;
    return QRegion(cell) - (notchedLeft ? left : QRect()) - (notchedRight ? right : QRect());
}

QString pathOf(KeySheet sheet)
{
    static const std::array<QString, sheetCount> paths = {
        QStringLiteral(":/Resources/Keyboard/keyboardB.png"),
        QStringLiteral(":/Resources/Keyboard/keyboardB_IN.png"),
        QStringLiteral(":/Resources/Keyboard/keyboardB_OUT.png"),
        QStringLiteral(":/Resources/Keyboard/keyboardB_deactive.png"),
        QStringLiteral(":/Resources/Keyboard/keyboardB_LEARN.png"),
    };
    return paths[at(sheet)];
}

QPixmap sheet(KeySheet sheet)
{
    return pictures::load(pathOf(sheet));
}

const QPixmap& picture(KeySheet sheet, KeyShape shape, KeyCell cell, KeyShine shine)
{
    return allCrops()[slot(sheet, shape, cell, shine)];
}

QPixmap withShine(const QPixmap& picture, KeyShine shine)
{
    if (shine == KeyShine::none)
        return picture;
    return pictures::overlay(picture, shinePicture(shine), shineRectangle);
}

QPixmap shineStrip(KeyShine shine, const QSize& size)
{
    return pictures::crop(shinePicture(shine), QRect(QPoint(0, 0), size));
}

} // namespace key_pictures
