#include "app/accessibility.h"

#include "app/MainWnd.h"
#include "app/ViewAccessible.h"
#include "app/WindowAccessible.h"
#include "screen/AbstractDialog.h"
#include "screen/TicTacToe.h"

#include <QGraphicsView>
#include <QLabel>

namespace {

/// A dialog without a name of its own is called by what it asks.
class DialogAccessible : public QAccessibleWidget
{
public:
    explicit DialogAccessible(QWidget* dialog) : QAccessibleWidget(dialog, QAccessible::Dialog) {}

    [[nodiscard]] QString text(QAccessible::Text which) const override
    {
        QString own = QAccessibleWidget::text(which);
        if (which != QAccessible::Name || !own.isEmpty())
            return own;
        const QString description = QAccessibleWidget::text(QAccessible::Description);
        const auto* label = widget()->findChild<QLabel*>();
        return !description.isEmpty() || !label ? description : label->text();
    }
};

class Listeners : public QAccessible::ActivationObserver
{
public:
    Listeners() { QAccessible::installActivationObserver(this); }
    ~Listeners() override { QAccessible::removeActivationObserver(this); }
    Q_DISABLE_COPY_MOVE(Listeners)

    void accessibilityActiveChanged(bool active) override { there = active; }

    bool there = QAccessible::isActive();
};

Listeners& listeners()
{
    static Listeners all;
    return all;
}

/// Held by a view that tells its parts: not to be met a second time.
class EmbeddedAccessible : public QAccessibleWidget
{
public:
    explicit EmbeddedAccessible(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Grouping) {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State own = QAccessibleWidget::state();
        own.invisible = true;
        return own;
    }
};

// Qt asks for each class that the object has, the most special one first.
QAccessibleInterface* make(const QString&, QObject* object)
{
    if (auto* window = qobject_cast<MainWnd*>(object))
        return new WindowAccessible(window);
    if (auto* dialog = qobject_cast<AbstractDialog*>(object))
        return new DialogAccessible(dialog);
    if (auto* game = qobject_cast<TicTacToe*>(object))
        return new EmbeddedAccessible(game);
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget && qobject_cast<AbstractDialog*>(object->parent()))
        return new QAccessibleWidget(widget, QAccessible::Grouping); // its panel
    auto* view = qobject_cast<QGraphicsView*>(object);
    return view && qobject_cast<MainWnd*>(view->parent()) ? new ViewAccessible(view) : nullptr;
}

} // namespace

void accessibility::install()
{
    QAccessible::installFactory(make); // which is kept once
    listeners();
}

bool accessibility::isHeard()
{
    return listeners().there;
}
