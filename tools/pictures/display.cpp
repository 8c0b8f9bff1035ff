// What lies in and on the display: logo, buttons, port view, cell pattern, glare.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

const QSize displaySize(532, 116);

// The form lays flat labels over these rows of the display; they must not stand out.
bool isFlatRow(int y)
{
    return (y >= 50 && y <= 57) || y >= 107;
}

void paintCells(QPainter& p)
{
    p.setRenderHint(QPainter::Antialiasing, false);
    const QColor cell = mix(palette::display, palette::displayShade, 0.45);
    for (int y = 6; y < displaySize.height(); y += 4)
        if (!isFlatRow(y))
            for (int x = 4; x < displaySize.width() - 3; x += 4)
                p.fillRect(x, y, 1, 1, cell);
}

// A band of light across the pane, soft on both sides; it keeps clear of the form's flat labels.
void paintBand(QPainter& p, double x, double width, int alpha)
{
    constexpr double slant = 46;
    QPainterPath band;
    band.addPolygon(QPolygonF({{x + slant, 0}, {x + slant + width, 0}, {x + width, 116}, {x, 116}}));
    band.closeSubpath();
    QLinearGradient light(QPointF(x + slant / 2, 58),
                          QPointF(x + slant / 2 + width, 58 + width * slant / 116));
    light.setColorAt(0, withAlpha(Qt::white, 0));
    light.setColorAt(0.25, withAlpha(Qt::white, alpha / 2));
    light.setColorAt(0.6, withAlpha(Qt::white, alpha));
    light.setColorAt(1, withAlpha(Qt::white, 0));
    p.fillPath(band, light);
}

void paintGlare(QPainter& p)
{
    paintBand(p, 402, 60, 34);
    paintBand(p, 472, 18, 26);
    brush::fadeDown(p, QRectF(0, 0, displaySize.width(), 14), withAlpha(Qt::white, 26));
}

enum class ButtonLook { neutral, hover, checked, disabled };

void paintButton(QPainter& p, ButtonLook look)
{
    const QRectF plate(0, 0, 105, 22);
    const bool checked = look == ButtonLook::checked;
    if (!checked && look != ButtonLook::disabled)
        brush::fillRound(p, plate.translated(0, 1), 4, withAlpha(palette::ink, 70));
    const QColor top = checked ? mix(palette::ink, palette::displayShade, 0.2)
                               : mix(palette::display, Qt::white, look == ButtonLook::hover ? 0.75 : 0.5);
    const QColor bottom =
        checked ? mix(palette::ink, palette::displayShade, 0.35)
                : mix(palette::displayShade, Qt::white, look == ButtonLook::hover ? 0.35 : 0.05);
    if (look != ButtonLook::disabled)
        brush::fillRound(p, plate, 4, vertical(plate, top, bottom));
    brush::strokeRound(p, plate, 4, withAlpha(palette::ink, look == ButtonLook::disabled ? 60 : 150));
}

void paintPortView(QPainter& p)
{
    const auto list = [&p](const QRectF& area, const QString& caption) {
        brush::text(p, QRectF(area.left() + 2, 13, area.width(), 13), caption, 10, true, palette::ink,
                    Qt::AlignLeft | Qt::AlignVCenter, 1);
        brush::fillRound(p, area, 3, mix(palette::display, Qt::white, 0.28));
        brush::strokeRound(p, area, 3, withAlpha(palette::ink, 130));
    };
    list(QRectF(8, 27, 189, 79), QStringLiteral("MIDI IN"));
    list(QRectF(205, 27, 164, 79), QStringLiteral("MIDI OUT"));
}

} // namespace

void addDisplayPictures(std::vector<Picture>& table)
{
    table.push_back({"Background/GlareDisplaySilkscreen.png", displaySize, paintGlare});
    table.push_back({"Background/smoke.gif", displaySize, paintCells});
    table.push_back({"Background/transparent.png", {17, 60}, [](QPainter&) {}});
    const auto button = [&table](const char* name, ButtonLook look) {
        table.push_back({QStringLiteral("CenterScreen/Button_%1.png").arg(QLatin1String(name)),
                         {105, 23},
                         [look](QPainter& p) { paintButton(p, look); }});
    };
    button("neutral", ButtonLook::neutral);
    button("hover", ButtonLook::hover);
    button("checked", ButtonLook::checked);
    button("disabled", ButtonLook::disabled);
    table.push_back({"MidiIoScreen/MIDI_IO_portBG.png", {398, 116}, paintPortView});
}
