// What lies in and on the display: logo, buttons, port view, cell pattern, glare.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"
#include "tools/pictures/plates.h"

#include <algorithm>
#include <cmath>

namespace {

using brush::mix;
using brush::withAlpha;

const QSize displaySize(532, 116);

// The form lays flat labels over these places of the display: the pattern stops at their edges.
const QRect flatPlaces[] = {{134, 50, 268, 8}, {0, 106, 532, 10}};

bool isFlat(int x, int y)
{
    return std::any_of(std::begin(flatPlaces), std::end(flatPlaces),
                       [x, y](const QRect& place) { return place.contains(x, y); });
}

void paintCellField(QPainter& p)
{
    p.setRenderHint(QPainter::Antialiasing, false);
    const QColor line = mix(palette::display, Qt::white, 0.055);
    for (int y = 9; y < 106; ++y)
        for (int x = 6; x < displaySize.width() - 6; ++x)
            if ((x % 4 == 2 || y % 4 == 1) && !isFlat(x, y))
                p.fillRect(x, y, 1, 1, line);
}

// A band of sky across the pane, soft on both sides; it keeps clear of the form's flat labels.
void paintBand(QPainter& p, double x, double width, int alpha)
{
    constexpr double slant = 40;
    const double foot = x - slant, height = displaySize.height();
    QPainterPath band;
    band.addPolygon(QPolygonF({{x, 0}, {x + width, 0}, {foot + width, height}, {foot, height}}));
    band.closeSubpath();
    // Across the band: its lines of equal light run along its slanted edges.
    const double share = 1 / (1 + slant * slant / (height * height));
    const QPointF across(width * share, width * share * slant / height);
    QLinearGradient light(QPointF(x, 0), QPointF(x, 0) + across);
    for (int i = 0; i <= 12; ++i) {
        const double way = i / 12.0, wave = 0.5 - 0.5 * std::cos(6.28318530718 * way);
        light.setColorAt(way, withAlpha(Qt::white, qRound(alpha * wave)));
    }
    p.fillPath(band, light);
}

void paintGlare(QPainter& p)
{
    brush::fadeDown(p, QRectF(0, 0, displaySize.width(), 48), withAlpha(Qt::white, 44));
    paintBand(p, 446, 76, 52);
    paintBand(p, 518, 14, 40);
}

void paintPortView(QPainter& p)
{
    const auto list = [&p](const QRectF& area, const QString& caption) {
        brush::text(p, QRectF(area.left() + 2, 13, area.width(), 13), caption, 10, true, palette::ink,
                    Qt::AlignLeft | Qt::AlignVCenter, 1);
        plates::paintPane(p, area, 3, plates::paneGround());
    };
    list(QRectF(8, 27, 189, 79), QStringLiteral("MIDI IN"));
    list(QRectF(205, 27, 164, 79), QStringLiteral("MIDI OUT"));
}

} // namespace

void addDisplayPictures(std::vector<Picture>& table)
{
    table.push_back({"Background/GlareDisplaySilkscreen.png", displaySize, paintGlare});
    table.push_back({"Background/smoke.gif", displaySize, paintCellField});
    table.push_back({"Background/transparent.png", {17, 60}, [](QPainter&) {}});
    const auto button = [&table](const char* name, plates::Look look) {
        table.push_back({QStringLiteral("CenterScreen/Button_%1.png").arg(QLatin1String(name)),
                         {105, 23},
                         [look](QPainter& p) { plates::paintPlate(p, QRectF(0, 0, 105, 22), 4, look); }});
    };
    button("neutral", plates::Look::neutral);
    button("hover", plates::Look::hover);
    button("checked", plates::Look::pressed);
    button("disabled", plates::Look::disabled);
    table.push_back({"MidiIoScreen/MIDI_IO_portBG.png", {398, 116}, paintPortView});
}
