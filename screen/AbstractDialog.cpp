// The layer and its panel: how it looks, and what the keys do in it.

#include "screen/AbstractDialog.h"

#include "app/MainWnd.h"
#include "keys/pictures.h"
#include "screen/CenterScreen.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTextEdit>

#include <algorithm>

namespace {

const QColor layerShade(18, 17, 15, 150);

bool isPlainSpace(const QKeyEvent& event)
{
    const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return event.key() == Qt::Key_Space && !(event.modifiers() & commands);
}

/// False if the object is no text field that can be written.
bool typeSpace(QObject* field)
{
    auto* line = qobject_cast<QLineEdit*>(field);
    auto* text = qobject_cast<QTextEdit*>(field);
    if (line && !line->isReadOnly())
        line->insert(QStringLiteral(" "));
    else if (text && !text->isReadOnly())
        text->insertPlainText(QStringLiteral(" "));
    else
        return false;
    return true;
}

bool isInPopup(QObject* object)
{
    const auto* widget = qobject_cast<QWidget*>(object);
    return widget && widget->window()->windowType() == Qt::Popup;
}

// The window's filter swallows both keys before a menu sees them.
void steerPopup(QWidget& popup, int key)
{
    if (key == Qt::Key_Escape) {
        popup.close();
    } else if (key == Qt::Key_Enter) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QWidget* inside = popup.focusWidget();
        QCoreApplication::sendEvent(inside ? inside : &popup, &press);
    }
}

} // namespace

AbstractDialog::AbstractDialog(QWidget* parent)
    : QWidget(parent), mainWindow(mainWnd), loop(std::make_shared<QEventLoop>())
{
    QPalette transparent = palette();
    transparent.setColor(QPalette::Window, Qt::transparent);
    setPalette(transparent);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_NoMousePropagation);
    setCursor(Qt::ArrowCursor);
    setStyleSheet(CenterScreen::getMainTextData(QStringLiteral(":/Resources/Dialogs/dialog.qss")));
    QWidget::setVisible(false); // a parent that is shown later does not show it
    connect(mainWnd, &MainWnd::specialKeyPressed, this, [this](int key) {
        if (takesKeys())
            specialKeyPress(key);
    });
}

void AbstractDialog::specialKeyPress(int key)
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        steerPopup(*popup, key);
        return;
    }
    // The Enter key always carries the modifier of its keypad.
    const bool modified = QApplication::keyboardModifiers() & ~Qt::KeypadModifier;
    if (key == Qt::Key_Escape)
        reject();
    else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !modified)
        accept();
}

void AbstractDialog::setPanel(QWidget* widget, const QString& picturePath, const QSize& otherwise)
{
    panelPicture = pictures::load(picturePath);
    widget->setFixedSize(panelPicture.isNull() ? otherwise : pictures::sizeOf(panelPicture));
    setPanel(widget);
}

void AbstractDialog::setPanel(QWidget* widget)
{
    panel = widget;
    coverParent();
    centrePanel();
}

void AbstractDialog::addField(QWidget* field)
{
    fields.append(field);
}

// Sees the events of the whole program while the dialog is shown.
bool AbstractDialog::eventFilter(QObject* object, QEvent* event)
{
    if (object == parent() && event->type() == QEvent::Resize)
        coverParent();
    if (event->type() != QEvent::ShortcutOverride)
        return QWidget::eventFilter(object, event);
    popupHadKey = isInPopup(object) || QApplication::activePopupWidget();
    // The window's filter takes the key press of a space for itself; this event comes before it.
    if (!fields.contains(qobject_cast<QWidget*>(object)) || !isPlainSpace(*static_cast<QKeyEvent*>(event)) ||
        !typeSpace(object))
        return false;
    event->accept();
    return true;
}

QList<QWidget*> AbstractDialog::reachableFields() const
{
    QList<QWidget*> reachable;
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(reachable),
                 [](const QWidget* field) { return field->isVisible() && field->isEnabled(); });
    return reachable;
}

bool AbstractDialog::focusNextPrevChild(bool next)
{
    const QList<QWidget*> reachable = reachableFields();
    if (reachable.isEmpty())
        return true;
    const int count = reachable.size();
    const int now = reachable.indexOf(QApplication::focusWidget());
    const int step = now < 0 ? (next ? 0 : count - 1) : now + (next ? 1 : count - 1);
    reachable.at(step % count)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void AbstractDialog::keyPressEvent(QKeyEvent* event)
{
    event->accept(); // no business of the window below
}

void AbstractDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    pictures::smooth(painter);
    painter.fillRect(rect(), layerShade);
    if (panel)
        painter.drawPixmap(panel->pos(), panelPicture);
}

void AbstractDialog::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    centrePanel();
}

void AbstractDialog::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    QCoreApplication::instance()->installEventFilter(this);
    coverParent();
    takeFocus();
}

void AbstractDialog::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    QCoreApplication::instance()->removeEventFilter(this);
}

void AbstractDialog::coverParent()
{
    if (parentWidget())
        setGeometry(parentWidget()->rect());
}

void AbstractDialog::centrePanel()
{
    if (!panel || layout())
        return;
    panel->move((width() - panel->width()) / 2, (height() - panel->height()) / 2);
    update();
}

void AbstractDialog::takeFocus()
{
    QWidget* target = firstFocus ? firstFocus.data() : this;
    target->setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(target))
        line->selectAll();
}
