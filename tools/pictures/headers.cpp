// The presets: flags on poles that stand on the black keys. The head is a lamp, the badge on the pole a
// window for the tonic; the text in it is the program's.

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"
#include "tools/pictures/picture_table.h"

#include <cmath>

namespace {

using brush::mix;
using brush::vertical;
using brush::withAlpha;

/// One of the five shapes. Its left column of pixels is 0; the pole's middle stands on the middle of the key.
struct Flag
{
    QSize size;
    QRectF head, badge;
    double tip;
};

constexpr double headTop = 1, headHeight = 24, badgeSize = 14;

Flag flag(int width, double headLeft, double headWidth, double badgeLeft, double badgeTop, double tip)
{
    return {QSize(width, qRound(tip) + 4), QRectF(headLeft, headTop, headWidth, headHeight),
            QRectF(badgeLeft, badgeTop, badgeSize, badgeSize), tip};
}

const Flag flags[] = {
    flag(34, 1, 32, 19, 40, 60), flag(34, 1, 32, 2, 40, 60),  flag(44, 1, 34, 29, 67, 87),
    flag(36, 1, 34, 11, 67, 87), flag(44, 10, 33, 2, 67, 87),
};

enum class Look { idle, active, shadow, target };

bool isLit(Look look)
{
    return look == Look::active || look == Look::shadow;
}

QLinearGradient steel(double left, double right)
{
    QLinearGradient metal(left, 0, right, 0);
    metal.setColorAt(0, palette::metalEdge);
    metal.setColorAt(0.4, palette::metalLight);
    metal.setColorAt(1, mix(palette::metalEdge, Qt::black, 0.4));
    return metal;
}

void paintPole(QPainter& p, const Flag& f)
{
    const double x = f.badge.center().x();
    const QRectF pole(x - 2, f.head.bottom() - 2, 4, f.tip - f.head.bottom() + 2);
    brush::fillRound(p, pole.adjusted(-1, 0, 1, 1), 1.5, withAlpha(palette::gap, 200));
    p.fillRect(pole, steel(pole.left(), pole.right()));
    // A clamp says whose pole it is where it passes at the edge of its head.
    const double inward = qBound(-9.0, f.head.center().x() - x, 9.0);
    const QRectF clamp = QRectF(x, f.head.bottom() - 1, inward, 3).normalized().adjusted(-3, 0, 3, 0);
    brush::fillRound(p, clamp.adjusted(-1, 0, 1, 1), 1.5, withAlpha(palette::gap, 200));
    brush::fillRound(p, clamp, 1.5, vertical(clamp, palette::metalLight, palette::metalEdge));
    // The foot clasps the key.
    const QRectF foot(x - 4, f.tip - 2, 8, 4);
    brush::fillRound(p, foot.adjusted(-1, -1, 1, 1), 2.5, withAlpha(palette::gap, 220));
    brush::fillRound(p, foot, 2, steel(foot.left(), foot.right()));
}

/// -1 if the cloth flies to the left of its pole, 1 if to the right, 0 if it hangs before it.
int flight(const Flag& f)
{
    const double away = f.head.center().x() - f.badge.center().x();
    return std::abs(away) < 2 ? 0 : (away > 0 ? 1 : -1);
}

/// The outline of the cloth, `inset` pixels inside its edge; its free end is cut like a pennant's.
QPainterPath cloth(const Flag& f, double inset)
{
    const QRectF area = f.head.adjusted(inset, inset, -inset, -inset);
    QPainterPath outline, cut;
    outline.addRoundedRect(area, 4 - inset, 4 - inset);
    const int side = flight(f);
    if (side == 0)
        return outline;
    const double end = side > 0 ? area.right() : area.left(), deep = 5, half = 7;
    cut.addPolygon(QPolygonF({{end + side, area.center().y() - half},
                              {end - side * deep, area.center().y()},
                              {end + side, area.center().y() + half}}));
    return outline.subtracted(cut);
}

void paintCloth(QPainter& p, const Flag& f, const QColor& rim)
{
    p.fillPath(cloth(f, 0), palette::gap);
    p.fillPath(cloth(f, 1), vertical(f.head, palette::graphiteLight, palette::graphite));
    p.strokePath(cloth(f, 1), QPen(rim, 1));
    const double x = f.head.center().x() - flight(f) * (f.head.width() / 2 - 4);
    for (const double y : {f.head.top() + 4, f.head.bottom() - 4}) // rivets on the pole's side
        if (flight(f) != 0)
            brush::fillRound(p, {x - 1, y - 1, 2, 2}, 1, withAlpha(palette::metalLight, 200));
}

void paintShadow(QPainter& p, const Flag& f)
{
    for (int i = 0; i < 3; ++i) {
        p.fillPath(cloth(f, 0).translated(i / 2.0, 2 + i), withAlpha(Qt::black, 60));
        brush::fillRound(p, f.badge.adjusted(i - 1, 2 + i, 1, 3), 4, withAlpha(Qt::black, 50));
    }
}

void paintPlate(QPainter& p, const QRectF& area, double radius, const QColor& rim)
{
    brush::fillRound(p, area, radius, palette::gap);
    const QRectF face = area.adjusted(1, 1, -1, -1);
    brush::fillRound(p, face, radius - 1, vertical(face, palette::graphiteLight, palette::graphite));
    brush::strokeRound(p, area.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, rim);
}

/// Out, the lamp is a ring around dark glass; lit, it is full. So the two differ without their colours.
void paintLamp(QPainter& p, const Flag& f, Look look)
{
    const QRectF lens = f.head.adjusted(7, 8, -7, -8).translated(-flight(f), 0);
    const QColor light = isLit(look) ? palette::presetActive : palette::presetIdle;
    brush::fillRound(p, lens.adjusted(-1, -1, 1, 1), 5, palette::gap);
    if (look == Look::idle) {
        brush::fillRound(p, lens, 4,
                         vertical(lens, mix(light, Qt::black, 0.82), mix(light, Qt::black, 0.68)));
        brush::strokeRound(p, lens, 4, mix(light, Qt::black, 0.1));
        return;
    }
    brush::halo(p, lens, 4, 5, withAlpha(light, 210));
    brush::fillRound(p, lens, 4, vertical(lens, mix(light, Qt::white, 0.6), mix(light, Qt::black, 0.06)));
    brush::fillRound(p, QRectF(lens.left() + 3, lens.top() + 1, lens.width() - 6, 2), 1,
                     withAlpha(Qt::white, 190));
}

/// Let go and the two change places: a broad rim that a dragged head does not cover, and two arrows past each
/// other.
void paintTarget(QPainter& p, const Flag& f)
{
    p.strokePath(cloth(f, 1), QPen(Qt::white, 2));
    brush::strokeRound(p, f.badge.adjusted(1, 1, -1, -1), 2, Qt::white);
    p.setPen(Qt::NoPen);
    p.setBrush(mix(palette::blueDark, Qt::black, 0.5));
    const QPointF c = f.head.center();
    for (const double s : {-1.0, 1.0}) {
        const QPolygonF arrow({c + QPointF(s * 9, -s * 1.5 - 1.5 * s), c + QPointF(s * 5, -4.2 * s - 1.5 * s),
                               c + QPointF(s * 5, -s * 2.2 - 1.0 * s),
                               c + QPointF(-s * 7, -s * 2.2 - 1.0 * s), c + QPointF(-s * 7, -s * 0.6),
                               c + QPointF(s * 9, -s * 0.6)});
        p.drawPolygon(arrow);
    }
}

QColor rimOf(Look look)
{
    if (look == Look::target)
        return withAlpha(Qt::white, 235);
    return isLit(look) ? withAlpha(palette::presetActive, 210) : withAlpha(palette::presetIdle, 110);
}

void paintFlag(QPainter& p, const Flag& f, Look look)
{
    if (look == Look::shadow)
        paintShadow(p, f);
    paintPole(p, f);
    paintCloth(p, f, rimOf(look));
    paintLamp(p, f, look);
    paintPlate(p, f.badge, 3, rimOf(look));
    brush::fillRound(p, f.badge.adjusted(2, 2, -2, -2), 1.5, withAlpha(Qt::black, 150));
    if (look == Look::target)
        paintTarget(p, f);
}

/// Lies over any of the looks while the menu is open.
void paintMenuMark(QPainter& p, const Flag& f)
{
    p.fillPath(cloth(f, 1), withAlpha(Qt::white, 50));
    p.strokePath(cloth(f, 1), QPen(withAlpha(Qt::white, 240), 1));
    const QRectF badge = f.badge.adjusted(0.5, 0.5, -0.5, -0.5);
    brush::fillRound(p, badge.adjusted(0.5, 0.5, -0.5, -0.5), 3, withAlpha(Qt::white, 50));
    brush::strokeRound(p, badge, 3.5, withAlpha(Qt::white, 240));
    p.setPen(Qt::NoPen);
    for (const double x : {-6.0, 0.0, 6.0}) {
        p.setBrush(Qt::black);
        p.drawEllipse(f.head.center() + QPointF(x, 0), 2.6, 2.6);
        p.setBrush(Qt::white);
        p.drawEllipse(f.head.center() + QPointF(x, 0), 1.6, 1.6);
    }
}

} // namespace

void addHeaderPictures(std::vector<Picture>& table)
{
    int number = 0;
    for (const Flag& f : flags) {
        ++number;
        const auto add = [&](const char* suffix, std::function<void(QPainter&)> paint) {
            table.push_back(
                {QStringLiteral("Headers/Header%1sharp_%2.png").arg(number).arg(QLatin1String(suffix)),
                 f.size, std::move(paint)});
        };
        add("deactive", [&f](QPainter& p) { paintFlag(p, f, Look::idle); });
        add("active", [&f](QPainter& p) { paintFlag(p, f, Look::active); });
        add("ActiveDropShadow", [&f](QPainter& p) { paintFlag(p, f, Look::shadow); });
        add("Switch", [&f](QPainter& p) { paintFlag(p, f, Look::target); });
        add("SwitchContextMenu", [&f](QPainter& p) { paintMenuMark(p, f); });
    }
}
