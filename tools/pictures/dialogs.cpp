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

void paintPlate(QPainter& p, const QRectF& plate)
{
    brush::halo(p, plate.translated(0, 1.5), 7, 4.5, withAlpha(Qt::black, 235));
    brush::fillRound(p, plate, 7, palette::well);
    const QRectF face = plate.adjusted(1, 1, -1, -1);
    p.save();
    brush::clipRound(p, face, 6);
    p.fillRect(face, vertical(face, mix(palette::metal, palette::metalLight, 0.85),
                              mix(palette::metal, palette::metalDark, 0.55)));
    brush::brushed(p, face, 9);
    brush::fadeDown(p, QRectF(face.topLeft(), QSizeF(face.width(), 3)), withAlpha(Qt::white, 190));
    brush::fadeUp(p, QRectF(face.bottomLeft() - QPointF(0, 4), QSizeF(face.width(), 4)),
                  withAlpha(Qt::black, 110));
    p.fillRect(QRectF(face.left(), face.top(), 1, face.height()), withAlpha(Qt::white, 110));
    p.fillRect(QRectF(face.right() - 1, face.top(), 1, face.height()), withAlpha(Qt::black, 70));
    p.restore();
}

// A display like the one on the case: its pane lies deep, and the sky lies on its upper end.
void paintField(QPainter& p, const QRectF& field)
{
    brush::recess(p, field.adjusted(-4, -4, 4, 4), 4, palette::well, palette::wellLight);
    p.fillRect(field.adjusted(-1, -1, 1, 1), palette::gap);
    p.fillRect(field, mix(palette::display, Qt::white, 0.2));
    brush::fadeDown(p, QRectF(field.topLeft(), QSizeF(field.width(), 60)), withAlpha(Qt::white, 70));
    brush::shadeOfFrame(p, field);
}

void paintPanel(QPainter& p, const QSizeF& size)
{
    const QRectF plate = plateOf(size);
    paintPlate(p, plate);
    paintField(p, fieldOf(size));
    const double left = plate.left() + 8, right = plate.right() - 8;
    const double top = plate.top() + 7.5, bottom = plate.bottom() - 7.5;
    brush::screw(p, {left, top}, 3.5, 25);
    brush::screw(p, {right, top}, 3.5, -40);
    brush::screw(p, {left, bottom}, 3.5, 75);
    brush::screw(p, {right, bottom}, 3.5, 10);
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
    const QRectF area = shape.boundingRect();
    p.fillPath(shape, vertical(area, mix(color, Qt::white, 0.3), mix(color, Qt::black, 0.1)));
    p.save();
    p.setClipPath(shape); // the upper edge catches the light
    p.strokePath(shape.translated(0, 1), QPen(withAlpha(Qt::white, 110), 2.4));
    p.restore();
    p.strokePath(shape, QPen(mix(color, Qt::black, 0.55), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
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
    paintSign(p, octagon, mix(palette::emberDark, palette::ember, 0.15));
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
