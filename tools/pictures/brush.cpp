#include "tools/pictures/brush.h"

#include "tools/pictures/palette.h"

#include <QFont>

#include <cmath>

namespace brush {
namespace {

// A fade that starts and ends gently; a straight one shows its ends as lines.
void fade(QPainter& painter, const QRectF& area, const QPointF& from, const QPointF& to, const QColor& color)
{
    QLinearGradient gradient(from, to);
    for (int i = 0; i <= 8; ++i) {
        const double way = i / 8.0;
        gradient.setColorAt(way, withAlpha(color, qRound(color.alpha() * (1 - way) * (1 - way))));
    }
    painter.fillRect(area, gradient);
}

QPainterPath roundPath(const QRectF& area, double radius)
{
    QPainterPath path;
    path.addRoundedRect(area, radius, radius);
    return path;
}

} // namespace

QColor mix(const QColor& a, const QColor& b, double share)
{
    const auto blend = [share](int x, int y) { return qRound(x + (y - x) * share); };
    return {blend(a.red(), b.red()), blend(a.green(), b.green()), blend(a.blue(), b.blue()),
            blend(a.alpha(), b.alpha())};
}

QColor withAlpha(const QColor& color, int alpha)
{
    QColor result = color;
    result.setAlpha(alpha);
    return result;
}

QLinearGradient vertical(const QRectF& area, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

QLinearGradient horizontal(const QRectF& area, const QColor& left, const QColor& right)
{
    QLinearGradient gradient(area.topLeft(), area.topRight());
    gradient.setColorAt(0, left);
    gradient.setColorAt(1, right);
    return gradient;
}

void fadeDown(QPainter& painter, const QRectF& area, const QColor& color)
{
    fade(painter, area, area.topLeft(), area.bottomLeft(), color);
}

void fadeUp(QPainter& painter, const QRectF& area, const QColor& color)
{
    fade(painter, area, area.bottomLeft(), area.topLeft(), color);
}

void fillRound(QPainter& painter, const QRectF& area, double radius, const QBrush& fill)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(area, radius, radius);
}

void strokeRound(QPainter& painter, const QRectF& area, double radius, const QColor& color)
{
    painter.setPen(QPen(color, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void recess(QPainter& painter, const QRectF& area, double radius, const QColor& top, const QColor& bottom)
{
    strokeRound(painter, area.adjusted(-1, 0, 1, 2), radius + 1, withAlpha(Qt::white, 95));
    fillRound(painter, area.adjusted(-1, -1, 1, 1), radius + 1, withAlpha(Qt::black, 120));
    fillRound(painter, area, radius, vertical(area, top, bottom));
    painter.save();
    clipRound(painter, area, radius);
    fadeDown(painter, QRectF(area.topLeft(), QSizeF(area.width(), 7)), withAlpha(Qt::black, 170));
    for (int i = 0; i < 2; ++i) // the walls shade the ground beside them
        strokeRound(painter, area.adjusted(i, -4, -i, 4), radius, withAlpha(Qt::black, 60 - 25 * i));
    painter.restore();
}

void shadeOfFrame(QPainter& painter, const QRectF& pane)
{
    fadeDown(painter, QRectF(pane.topLeft(), QSizeF(pane.width(), 7)), withAlpha(Qt::black, 80));
    for (int i = 0; i < 4; ++i) {
        const QColor shade = withAlpha(Qt::black, 32 - 8 * i);
        painter.fillRect(QRectF(pane.left() + i, pane.top(), 1, pane.height()), shade);
        painter.fillRect(QRectF(pane.right() - 1 - i, pane.top(), 1, pane.height()), shade);
    }
}

void clipRound(QPainter& painter, const QRectF& area, double radius)
{
    painter.setClipPath(roundPath(area, radius));
}

void halo(QPainter& painter, const QRectF& area, double radius, double reach, const QColor& color)
{
    painter.save();
    const QRectF room = area.adjusted(-reach - 1, -reach - 1, reach + 1, reach + 1);
    QPainterPath outside;
    outside.addRect(room);
    painter.setClipPath(outside.subtracted(roundPath(area, radius)));
    const int rings = qRound(reach * 2);
    for (int i = rings; i >= 1; --i) {
        const double grow = i * 0.5, way = static_cast<double>(i) / rings;
        const double alpha = color.alpha() * (1 - way) * (1 - way) * 3.0 / rings;
        fillRound(painter, area.adjusted(-grow, -grow, grow, grow), radius + grow,
                  withAlpha(color, qMin(255, qRound(alpha))));
    }
    painter.restore();
}

void brushed(QPainter& painter, const QRectF& area, int strength)
{
    // Whole rows only: they look like brushed metal and still pack well.
    quint32 noise = 0x9e3779b9U;
    for (double y = area.top(); y < area.bottom(); y += 0.5) {
        noise = noise * 1664525U + 1013904223U;
        const int alpha = static_cast<int>(noise >> 16) % (2 * strength + 1) - strength;
        const QColor streak = withAlpha(alpha > 0 ? Qt::white : Qt::black, std::abs(alpha));
        painter.fillRect(QRectF(area.left(), y, area.width(), 0.5), streak);
    }
}

void screw(QPainter& painter, const QPointF& centre, double radius, double turn)
{
    const QRectF head(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    fillRound(painter, head.adjusted(-1, -1, 1, 1), radius + 1, withAlpha(Qt::black, 75));
    fillRound(painter, head.adjusted(-1, 0, 1, 2), radius + 1, withAlpha(Qt::white, 55));
    fillRound(painter, head, radius, vertical(head, palette::metalLight, palette::metalDark));
    strokeRound(painter, head, radius, withAlpha(Qt::black, 70));
    painter.save();
    painter.translate(centre);
    painter.rotate(turn);
    const double arm = radius - 1;
    painter.fillRect(QRectF(-arm, -0.5, 2 * arm, 1.4), withAlpha(Qt::white, 110));
    painter.fillRect(QRectF(-arm, -0.7, 2 * arm, 1), palette::gap);
    painter.restore();
}

void text(QPainter& painter, const QRectF& area, const QString& words, int pixelSize, bool bold,
          const QColor& color, int alignment, double spacing)
{
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial")});
    // The same letters whatever the machine's font settings are.
    font.setStyleHint(QFont::SansSerif, QFont::PreferAntialias);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(area, alignment, words);
}

void engraved(QPainter& painter, const QRectF& area, const QString& words, int pixelSize, int alignment)
{
    text(painter, area.translated(0, 1), words, pixelSize, true, withAlpha(Qt::white, 105), alignment, 2);
    text(painter, area, words, pixelSize, true, palette::engraving, alignment, 2);
}

} // namespace brush
