#include "tools/pictures/brush.h"

#include "tools/pictures/palette.h"

#include <QFont>

namespace brush {

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
    // The lip catches the light below, the case shades above.
    strokeRound(painter, area.adjusted(-1, -1, 1, 2), radius + 1, withAlpha(Qt::white, 70));
    strokeRound(painter, area.adjusted(-1, -1, 1, 1), radius + 1, withAlpha(Qt::black, 90));
    fillRound(painter, area, radius, vertical(area, top, bottom));
    painter.save();
    QPainterPath clip;
    clip.addRoundedRect(area, radius, radius);
    painter.setClipPath(clip);
    for (int i = 0; i < 5; ++i)
        strokeRound(painter, area.adjusted(-2, i - 1, 2, 20), radius, withAlpha(Qt::black, 60 - 12 * i));
    painter.restore();
}

void glow(QPainter& painter, const QRectF& area, double radius, const QColor& color, int alpha)
{
    for (int i = 5; i >= 1; --i) {
        const double grow = i * 1.2;
        strokeRound(painter, area.adjusted(-grow, -grow, grow, grow), radius + grow,
                    withAlpha(color, alpha / (i + 1)));
    }
}

void screw(QPainter& painter, const QPointF& centre)
{
    const QRectF head(centre.x() - 3.5, centre.y() - 3.5, 7, 7);
    fillRound(painter, head.adjusted(-0.8, -0.3, 0.8, 1.3), 4, withAlpha(Qt::black, 70));
    fillRound(painter, head, 3.5, vertical(head, palette::metalLight, palette::metalEdge));
    painter.setPen(QPen(palette::gap, 1));
    painter.drawLine(centre + QPointF(-2, -1), centre + QPointF(2, 1));
}

void text(QPainter& painter, const QRectF& area, const QString& words, int pixelSize, bool bold,
          const QColor& color, int alignment, double spacing)
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(area, alignment, words);
}

} // namespace brush
