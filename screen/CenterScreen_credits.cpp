// The credits, which scroll for ever.

#include "screen/CenterScreen.h"

#include "app/MainWnd.h"
#include "screen/credit_lines.h"

#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>
#include <QTimer>

namespace {

// Scene pixels.
constexpr qreal halfWidth = 145, firstLineY = 100, lineDistance = 10;
constexpr qreal step = 0.6, vanishingY = 45.0;
// Behind the labels of the form that cut the lines off, a line is clear already.
constexpr qreal clearAbove = 63, clearBelow = 111, fadeLength = 8;
constexpr QRgb textColor = 0x575450;

qreal opacityAt(qreal lineY)
{
    return qBound(0.0, qMin(lineY - clearAbove, clearBelow - lineY) / fadeLength, 1.0);
}

/// A line that is centred on `halfWidth`, however long it is. It has no width to be centred in, so that it is
/// never wrapped; a margin does it.
QGraphicsTextItem* makeLine(const QString& text)
{
    auto* item = new QGraphicsTextItem;
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    item->setFont(font);
    item->setDefaultTextColor(QColor(textColor));
    item->setPlainText(text);
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::NoWrap);
    item->document()->setDefaultTextOption(option);
    QTextBlockFormat format;
    format.setLeftMargin(halfWidth - item->document()->documentMargin() -
                         QFontMetricsF(font).horizontalAdvance(text) / 2);
    QTextCursor(item->document()).mergeBlockFormat(format);
    item->setTextWidth(0);
    item->setAcceptedMouseButtons(Qt::NoButton);
    return item;
}

} // namespace

QStringList CenterScreen::parseCreditFile(const QString& file)
{
    return wrappedCreditLines(getMainTextData(file));
}

void CenterScreen::hideCreditText()
{
    qDeleteAll(creditItems);
    creditItems.clear();
}

void CenterScreen::setSceneCredits()
{
    leaveScene();
    form.versionLabel->show();
    showTexts(false);
    showButtons(true, true);
    form.hiddenLayer->show();
    form.buttonMIDIinOut->setChecked(false);
    form.buttonCredits->setChecked(false);
    for (const QString& line : qAsConst(creditLines)) {
        QGraphicsTextItem* item = makeLine(line);
        item->setX(x() + scene->width() / 2 - halfWidth);
        scene->addItem(item);
        creditItems.append(item);
    }
    resetCreditText();
    creditTimer->start();
    form.buttonCredits->setFocus();
    enterScene(scene_credits);
}

void CenterScreen::moveCreditsText()
{
    for (QGraphicsTextItem* item : qAsConst(creditItems)) {
        item->setY(item->y() - step);
        item->setOpacity(opacityAt(item->y()));
        if (item->y() < vanishingY)
            item->hide();
    }
    if (!creditItems.isEmpty() && !creditItems.last()->isVisible())
        resetCreditText();
}

void CenterScreen::resetCreditText()
{
    qreal lineY = y() + firstLineY;
    for (QGraphicsTextItem* item : qAsConst(creditItems)) {
        item->setY(lineY);
        item->setOpacity(opacityAt(lineY));
        item->show();
        lineY += lineDistance;
    }
}
