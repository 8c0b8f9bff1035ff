#include "shown_words.h"

#include "app/MainWnd.h"
#include "headers/HeaderController.h"

#include <QGraphicsItem>
#include <QMenu>
#include <QTextDocumentFragment>
#include <QTextEdit>

namespace shown_words {
namespace {

const char* const readable[] = {
    "text",        "toolTip",  "accessibleName", "accessibleDescription", "placeholderText",
    "windowTitle", "statusTip"};

void add(QStringList& words, const QString& place, const QString& text)
{
    static const QRegularExpression letter(QStringLiteral("\\pL"));
    const QString plain = QTextDocumentFragment::fromHtml(text).toPlainText();
    if (plain.contains(letter))
        words << place + QLatin1Char('=') + plain;
}

void addWidget(QStringList& words, const QWidget& widget)
{
    const QString name = widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                                       : widget.objectName();
    for (const char* property : readable)
        add(words, name + QLatin1Char('.') + QLatin1String(property), widget.property(property).toString());
    if (const auto* page = qobject_cast<const QTextEdit*>(&widget))
        add(words, name + QLatin1String(".page"), page->toPlainText());
}

} // namespace

QStringList of(const QWidget& widget)
{
    QStringList words;
    addWidget(words, widget);
    const QList<QWidget*> children = widget.findChildren<QWidget*>();
    for (const QWidget* child : children)
        addWidget(words, *child);
    return words;
}

QStringList of(const QGraphicsScene& scene)
{
    QStringList words;
    const QList<QGraphicsItem*> items = scene.items(Qt::AscendingOrder);
    for (const QGraphicsItem* item : items)
        add(words, QStringLiteral("item"), item->toolTip());
    return words;
}

QStringList of(const MainWnd& window)
{
    QStringList words = of(static_cast<const QWidget&>(window));
    const QList<QGraphicsView*> views = window.findChildren<QGraphicsView*>();
    for (const QGraphicsView* view : views)
        if (view->scene())
            words += of(*view->scene());
    const QList<QAction*> entries = window.headerController->menu->actions();
    for (const QAction* entry : entries)
        add(words, QStringLiteral("entry"), entry->text());
    return words;
}

} // namespace shown_words
