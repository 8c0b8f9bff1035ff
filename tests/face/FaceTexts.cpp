// The texts of the window, and how each is taken away.

#include "FaceTexts.h"

#include "app/MainWnd.h"
#include "headers/AnchorsGroup.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"
#include "screen/AbstractDialog.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"

#include <QComboBox>
#include <QGraphicsTextItem>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTextEdit>

namespace face_texts {

namespace {

QRectF inWindow(const QGraphicsView& view, const QRectF& ofScene)
{
    return {view.mapFromScene(ofScene.topLeft()) + view.pos(), ofScene.size()};
}

QRectF inWindow(const QWidget& widget, const QWidget& window)
{
    return {widget.mapTo(&window, QPoint()), widget.size()};
}

void addForm(QVector<FaceText>& texts, const MainWnd& window)
{
    const Ui_SorvaneClass& form = window.ui;
    for (QPushButton* button : {form.buttonMIDIinOut, form.buttonCredits, form.buttonManual,
                                form.buttonExport, form.buttonImport, form.buttonReset})
        if (button->isVisible())
            texts.append(
                {button->objectName(), inWindow(*button, window), [button] { button->setText(QString()); }});
    if (form.about->isVisible())
        texts.append({form.about->objectName(), inWindow(*form.about, window),
                      [about = form.about] { about->clear(); }});
    if (form.versionLabel->isVisible())
        texts.append({form.versionLabel->objectName(), inWindow(*form.versionLabel, window),
                      [label = form.versionLabel] { label->setText(QString()); }});
}

void addFlags(QVector<FaceText>& texts, const MainWnd& window)
{
    for (HeaderItem* flag : qAsConst(window.headerController->headers)) {
        if (!flag->isVisible() || !flag->record.tonicOn || flag->record.nameTonic.isEmpty())
            continue;
        const QRectF box = flag->mapRectToScene(QRectF(flag->tonicRect));
        texts.append({QStringLiteral("tonic of flag %1%2")
                          .arg(key_roles::headerSlot(flag))
                          .arg(QLatin1String(flag->isActive() ? ", active" : "")),
                      inWindow(*window.ui.inKeyboardGraphicsView, box), [flag] {
                          flag->record.nameTonic.clear();
                          flag->update();
                      }});
    }
}

void addAnchor(QVector<FaceText>& texts, const QGraphicsView& view, QGraphicsItemGroup* anchor,
               const char* side)
{
    if (!anchor->isVisible() || anchor->effectiveOpacity() < 0.2)
        return;
    QGraphicsItem* number = anchor->childItems().value(1);
    texts.append({QLatin1String(side) + QLatin1String(" anchor ") + key_roles::anchorName(anchor),
                  inWindow(view, number->sceneBoundingRect().adjusted(-2, -2, 2, 2)),
                  [number] { number->hide(); }});
}

void addAnchors(QVector<FaceText>& texts, const MainWnd& window)
{
    const PowerItem& power = *window.powerItem;
    if (!power.isSwitchOn())
        return; // dimmed: they move nothing that sounds
    for (QGraphicsItemGroup* anchor :
         power.anchorsInLeft + QList<QGraphicsItemGroup*>{power.mainAnchorIn} + power.anchorsInRight)
        addAnchor(texts, *window.ui.inKeyboardGraphicsView, anchor, "in");
    for (QGraphicsItemGroup* anchor :
         power.anchorsOutLeft + QList<QGraphicsItemGroup*>{power.mainAnchorOut} + power.anchorsOutRight)
        addAnchor(texts, *window.ui.outKeyboardGraphicsView, anchor, "out");
}

// Each number for itself: beams of the anchors stand between them.
void addBar(QVector<FaceText>& texts, const QGraphicsView& view, QGraphicsItem* bar,
            const degree_marks::Marks& marks, const char* side)
{
    constexpr int digitHeight = 8;
    auto* picture = qgraphicsitem_cast<QGraphicsPixmapItem*>(bar);
    const bool in = QLatin1String(side) == QLatin1String("in");
    const char* bare = in ? ":/Resources/INPUTanchorbar.png" : ":/Resources/OUTPUTanchorbar.png";
    for (const degree_marks::Mark& mark : marks) {
        const QPixmap& digits = mainWnd->degreeDigits(mark.number);
        const QRectF box(mark.x, in ? 3 : 9, digits.width() / digits.devicePixelRatio(), digitHeight);
        texts.append(
            {QStringLiteral("%1 bar's %2 at %3").arg(QLatin1String(side)).arg(mark.number).arg(mark.x),
             inWindow(view, picture->mapRectToScene(box)),
             [picture, bare] { picture->setPixmap(pictures::load(QLatin1String(bare))); }});
    }
}

void addSquares(QVector<FaceText>& texts, MainWnd& window)
{
    const QGraphicsView& view = *window.ui.centerGraphicsView;
    const QImage blank = pictures::load(QStringLiteral(":/Resources/SquareButton.png")).toImage();
    const auto items = view.scene()->items();
    for (const QGraphicsItem* item : items) {
        const auto* square = qgraphicsitem_cast<const QGraphicsPixmapItem*>(item);
        if (square && square->isVisible() && square->pixmap().size() == blank.size() &&
            square->pixmap().toImage() != blank)
            texts.append({QStringLiteral("number square at %1").arg(item->x()),
                          inWindow(view, item->sceneBoundingRect()), [&window] {
                              for (int degree = 0; degree < 12; ++degree)
                                  window.showScaleSquare(degree, 0);
                          }});
    }
}

void addNumbers(QVector<FaceText>& texts, MainWnd& window)
{
    const PowerItem& power = *window.powerItem;
    if (!power.isSwitchOn())
        return;
    addBar(texts, *window.ui.inKeyboardGraphicsView, power.anchorBarIn, power.marksIn(), "in");
    addBar(texts, *window.ui.outKeyboardGraphicsView, power.anchorBarOut, power.marksOut(), "out");
    addSquares(texts, window);
}

void addLibrary(QVector<FaceText>& texts, const MainWnd& window)
{
    const LibraryView& view = *window.centerScreen->libraryView();
    if (!window.centerScreen->libraryOpen)
        return;
    for (const auto code :
         {LibraryButton::edit_abbr1, LibraryButton::edit_abbr2, LibraryButton::scale_label}) {
        LibraryButton* plate = &view.button(code);
        if (!plate->text().isEmpty())
            texts.append({QStringLiteral("plate %1").arg(code),
                          inWindow(*window.ui.centerGraphicsView, plate->sceneBoundingRect()),
                          [plate] { plate->setText(QString()); }});
    }
    texts.append({QStringLiteral("description"), inWindow(*view.description, window),
                  [page = view.description] { page->clear(); }});
    texts += rowsOf(*view.categories, window) + rowsOf(*view.scales, window);
}

void addCredits(QVector<FaceText>& texts, const MainWnd& window)
{
    const QRectF pane(window.ui.centerGraphicsView->x() + 186, 226, 532, 46);
    for (QGraphicsItem* line : qAsConst(window.centerScreen->creditItems)) {
        const QRectF box = inWindow(*window.ui.centerGraphicsView, line->sceneBoundingRect());
        if (line->isVisible() && pane.top() <= box.top() && pane.bottom() >= box.bottom())
            texts.append({QStringLiteral("credit line at %1").arg(box.y()),
                          {pane.x() + 140, box.y(), 254, box.height()},
                          [line] { line->hide(); }});
    }
}

// A label in a layout keeps its place as long as it keeps its words.
void addDialogWidget(QVector<FaceText>& texts, QWidget* widget, const QWidget& window)
{
    const QString name = QStringLiteral("dialog's %1 %2")
                             .arg(QLatin1String(widget->metaObject()->className()), widget->objectName());
    const QRectF box = inWindow(*widget, window);
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        if (!label->text().trimmed().isEmpty())
            texts.append({name + label->text().left(12), box,
                          [label] { label->setStyleSheet(QStringLiteral("color: transparent")); }});
    } else if (auto* button = qobject_cast<QPushButton*>(widget)) {
        texts.append({name, box, [button] { button->setText(QString()); }});
    } else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->setReadOnly(true);
        line->deselect();
        texts.append({name, box, [line] { line->clear(); }});
    } else if (auto* text = qobject_cast<QTextEdit*>(widget)) {
        text->setReadOnly(true);
        texts.append({name, box, [text] {
                          text->clear();
                          text->setPlaceholderText(QString());
                      }});
    } else if (auto* choice = qobject_cast<QComboBox*>(widget)) {
        texts.append({name, box.adjusted(0, 0, -20, 0), [choice] { choice->clear(); }});
    }
}

} // namespace

QVector<FaceText> rowsOf(QListWidget& list, const QWidget& window)
{
    QVector<FaceText> texts;
    const QRect pane = list.viewport()->rect();
    for (int row = 0; row < list.count(); ++row) {
        QListWidgetItem* item = list.item(row);
        const QRect box = list.visualItemRect(item);
        if (pane.contains(box.center()) && box.bottom() <= pane.bottom())
            texts.append({QStringLiteral("row '%1' of %2").arg(item->text(), list.accessibleName()),
                          QRectF(box.translated(list.viewport()->mapTo(&window, QPoint()))),
                          [item] { item->setText(QString()); }});
    }
    return texts;
}

QVector<FaceText> all(MainWnd& window, AbstractDialog* dialog)
{
    QVector<FaceText> texts;
    if (dialog) {
        const auto children = dialog->findChildren<QWidget*>();
        for (QWidget* child : children)
            if (child->isVisible())
                addDialogWidget(texts, child, window);
        return texts; // the rest lies in its shade
    }
    addForm(texts, window);
    addFlags(texts, window);
    addAnchors(texts, window);
    addNumbers(texts, window);
    addLibrary(texts, window);
    addCredits(texts, window);
    for (QListWidget* list : {window.centerScreen->inPortList, window.centerScreen->outPortList})
        if (list->isVisible())
            texts += rowsOf(*list, window);
    return texts;
}

QImage render(QWidget& widget, int ratio)
{
    QImage picture(widget.size() * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::magenta); // nothing of it is left
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    picture.setDevicePixelRatio(1);
    return picture;
}

Grounds withAndWithout(const QVector<FaceText>& texts, QWidget& widget, int ratio)
{
    const QImage with = render(widget, ratio);
    for (const FaceText& text : texts)
        text.erase();
    QCoreApplication::sendPostedEvents();
    return {with, render(widget, ratio)};
}

QRect scaled(const QRectF& box, int ratio)
{
    return QRectF(box.topLeft() * ratio, box.size() * ratio).toAlignedRect();
}

} // namespace face_texts
