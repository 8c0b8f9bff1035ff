#include "AnchorFixture.h"

#include "headers/AnchorItem.h"

void AnchorFixture::init()
{
    openWindow();
    show();
    window->setPower(true);
    port->clear();
    hand = std::make_unique<Hand>(window->ui.inKeyboardGraphicsView);
}

QGraphicsItem* AnchorFixture::anchor(int n) const
{
    return anchors()->findAnchorByName(AnchorItem::nameOf(n));
}

QPointF AnchorFixture::gripOf(int n) const
{
    return {sceneX(n) + 388 + 11, onBar};
}

void AnchorFixture::putGroup(qreal x) const
{
    anchors()->setX(x);
    power()->remap();
}

void AnchorFixture::dragBy(int n, int dx) const
{
    const QPointF grip = gripOf(n);
    hand->press(grip);
    hand->move(grip + QPointF(dx, 0));
}

void AnchorFixture::choose(int tonicDegree, const QString& word) const
{
    tonic().setActiveKey(tonic().findKey(tonicDegree));
    setScale(word);
}

// Degrees of unequal steps, so that no two neighbours are mixed up.
QString AnchorFixture::wordOf(int count)
{
    static const int order[] = {0, 7, 4, 10, 2, 9, 5, 11, 3, 8, 1, 6};
    QString word(12, QLatin1Char('o'));
    for (int i = 0; i < count; ++i)
        word[order[i]] = QLatin1Char('x');
    return word;
}

AnchorRule::Numbers AnchorFixture::asNumbers(const degree_marks::Marks& marks)
{
    AnchorRule::Numbers numbers;
    for (const degree_marks::Mark& mark : marks)
        numbers.append({mark.x, mark.number});
    return numbers;
}

AnchorRule AnchorFixture::rule() const
{
    return {tonic().tonicModifierIndex(), scale().scaleModifier(),
            -qRound(anchors()->x()) / AnchorRule::white};
}

QString AnchorFixture::fault() const
{
    if (anchors()->pos() != QPointF(AnchorRule::white * qRound(anchors()->x() / AnchorRule::white), 0))
        return QStringLiteral("the group is at %1, %2").arg(anchors()->x()).arg(anchors()->y());
    const AnchorRule wanted = rule();
    if (asNumbers(power()->marksIn()) != wanted.inBar())
        return QStringLiteral("the numbers at %1").arg(anchors()->x());
    const QString keys = faultOfKeys(wanted);
    return keys.isEmpty() ? faultOfAnchors() : keys;
}

QString AnchorFixture::faultOfKeys(const AnchorRule& wanted) const
{
    for (const auto& [key, target] : wanted.targets()) {
        const QGraphicsItem* item = window->findInNote(key);
        if (key_roles::target(item) != target)
            return QStringLiteral("key %1 plays %2, not %3")
                .arg(key)
                .arg(key_roles::target(item))
                .arg(target);
        if (key_roles::isDeactive(item) != (target == -1))
            return QStringLiteral("the grey of key %1").arg(key);
    }
    return {};
}

QString AnchorFixture::faultOfAnchors() const
{
    const int octave = AnchorRule::white * rule().count();
    for (int n = -4; n <= 4; ++n) {
        if (anchor(n)->pos() != QPointF(n * octave, 0))
            return QStringLiteral("anchor %1 is at %2").arg(n).arg(anchor(n)->x());
        if (qRound(100 * anchor(n)->opacity()) != AnchorRule::opacityAt(qRound(sceneX(n))))
            return QStringLiteral("the opacity of anchor %1").arg(n);
    }
    return {};
}
