// What dialogs stand on, and the signs of their messages.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

#include <cmath>

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

// Panels

QRectF plateOf(const QSizeF& panel)
{
    return {4, 3, panel.width() - 8, panel.height() - 9};
}

QRectF fieldOf(const QSizeF& panel)
{
    return plateOf(panel).adjusted(14, 13, -14, -14);
}

void paintPlateShadow(QPainter& p, const QRectF& plate)
{
    for (int i = 4; i >= 1; --i)
        brush::fillRound(p, plate.adjusted(-i, 2 - i, i, 1.0 + i), 7.0 + i, withAlpha(Qt::black, 30));
}

void paintPlate(QPainter& p, const QRectF& plate)
{
    brush::fillRound(p, plate, 7,
                     vertical(plate, mix(palette::metal, palette::metalLight, 0.85),
                              mix(palette::metal, palette::metalDark, 0.45)));
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(plate, 7, 7);
    p.setClipPath(clip);
    for (int y = 0; y < static_cast<int>(plate.height()); y += 2) // brushed along its length
        p.fillRect(QRectF(plate.left(), plate.top() + y, plate.width(), 1),
                   withAlpha(Qt::white, y % 6 == 0 ? 16 : 8));
    p.restore();
    brush::strokeRound(p, plate.adjusted(1, 1, -1, -1), 6, withAlpha(Qt::white, 110));
    brush::strokeRound(p, plate, 7, withAlpha(palette::well, 190));
}

void paintField(QPainter& p, const QRectF& field)
{
    brush::recess(p, field.adjusted(-3, -3, 3, 3), 5, palette::well, palette::wellLight);
    brush::fillRound(p, field, 3, mix(palette::display, Qt::white, 0.22));
    for (int i = 0; i < 4; ++i) // the pane lies behind the frame
        p.fillRect(QRectF(field.left(), field.top() + i, field.width(), 1),
                   withAlpha(Qt::black, 42 - 10 * i));
}

void paintPanel(QPainter& p, const QSizeF& size)
{
    const QRectF plate = plateOf(size);
    paintPlateShadow(p, plate);
    paintPlate(p, plate);
    paintField(p, fieldOf(size));
    for (const double x : {plate.left() + 8, plate.right() - 8})
        for (const double y : {plate.top() + 7.5, plate.bottom() - 7.5})
            brush::screw(p, {x, y}, 3.5, x < 100 ? 25 : -40);
}

void paintArrow(QPainter& p)
{
    QPainterPath arrow(QPointF(0.5, 0.5));
    arrow.lineTo(8.5, 0.5);
    arrow.lineTo(4.5, 5.5);
    arrow.closeSubpath();
    p.fillPath(arrow, palette::ink);
}

// Signs

void paintSign(QPainter& p, const QPainterPath& shape, const QColor& color)
{
    for (int i = 3; i >= 1; --i)
        p.strokePath(shape.translated(0, 1.2),
                     QPen(withAlpha(Qt::black, 22), 1.4 * i, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.fillPath(shape,
               vertical(shape.boundingRect(), mix(color, Qt::white, 0.28), mix(color, Qt::black, 0.12)));
    p.strokePath(shape, QPen(mix(color, Qt::black, 0.5), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void paintInfo(QPainter& p)
{
    QPainterPath disc;
    disc.addEllipse(QRectF(3, 2, 34, 34));
    paintSign(p, disc, mix(palette::blue, palette::blueDark, 0.55));
    brush::fillRound(p, QRectF(17.5, 9, 5, 5), 2.5, Qt::white);
    brush::fillRound(p, QRectF(17.5, 16.5, 5, 13.5), 1.5, Qt::white);
}

void paintWarning(QPainter& p)
{
    QPainterPath triangle(QPointF(20, 4));
    triangle.lineTo(36, 33);
    triangle.lineTo(4, 33);
    triangle.closeSubpath();
    QPainterPathStroker round;
    round.setWidth(4);
    round.setJoinStyle(Qt::RoundJoin);
    paintSign(p, triangle.united(round.createStroke(triangle)).simplified(), palette::amber);
    const QColor bang = mix(palette::amberDark, Qt::black, 0.5);
    brush::fillRound(p, QRectF(18, 12, 4, 12), 1.8, bang);
    brush::fillRound(p, QRectF(17.8, 26, 4.4, 4.4), 2.2, bang);
}

void paintError(QPainter& p)
{
    QPainterPath octagon;
    for (int i = 0; i < 8; ++i) {
        const double angle = (i + 0.5) * 3.14159265358979 / 4;
        const QPointF corner(20 + 18 * std::cos(angle), 19 + 18 * std::sin(angle));
        if (i == 0)
            octagon.moveTo(corner);
        else
            octagon.lineTo(corner);
    }
    octagon.closeSubpath();
    paintSign(p, octagon, mix(palette::ember, QColor(0x8c, 0x10, 0x0c), 0.6));
    p.setPen(QPen(Qt::white, 4.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(14, 13), QPointF(26, 25));
    p.drawLine(QPointF(26, 13), QPointF(14, 25));
}

} // namespace

void addDialogPictures(std::vector<Picture>& table)
{
    const auto panel = [&table](const char* name, const QSize& size) {
        table.push_back({QStringLiteral("Background/%1_background.png").arg(QLatin1String(name)), size,
                         [size](QPainter& p) { paintPanel(p, size); }});
    };
    panel("message", {428, 215});
    panel("addWindow", {428, 330});
    panel("editionWindow", {428, 296});
    table.push_back({"Dialogs/arrow_down.png", {9, 6}, paintArrow});
    table.push_back({"message_info.png", {40, 40}, paintInfo});
    table.push_back({"message_warning.png", {40, 40}, paintWarning});
    table.push_back({"message_error.png", {40, 40}, paintError});
}
