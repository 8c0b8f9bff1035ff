#include "screen/AlertMessageBoxWidget.h"

#include "keys/pictures.h"
#include "screen/dialog_panel.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QMargins innerMargins(0, 5, 8, 5); // with the widget's own: the same air on both sides
constexpr int titleSpacing = 6;
constexpr int pictureSpacing = 5;

QPixmap pictureOf(alert_type type)
{
    switch (type) {
    case alert_warning:
        return pictures::load(QStringLiteral(":/Resources/message_warning.png"));
    case alert_error:
        return pictures::load(QStringLiteral(":/Resources/message_error.png"));
    default:
        return pictures::load(QStringLiteral(":/Resources/message_info.png"));
    }
}

/// Stays down, as what Return presses.
class HeldButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        QPushButton::mousePressEvent(event);
        held = event->button() == Qt::LeftButton;
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        QPushButton::mouseMoveEvent(event);
        setDown(true);
    }

    // A button that is down takes any release for a click.
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (!held || event->button() != Qt::LeftButton)
            return;
        held = false;
        const QPointer<HeldButton> alive(this);
        QPushButton::mouseReleaseEvent(event);
        if (alive)
            setDown(true);
    }

private:
    bool held = false;
};

} // namespace

AlertMessageBoxWidget::AlertMessageBoxWidget(const QString& titleText, const QString& messageText,
                                             const QString& ok, const QString& cancel, alert_type alertType,
                                             QWidget* parent)
    : QWidget(parent), title(titleText), message(messageText), okText(ok.isEmpty() ? tr("Ok") : ok),
      cancelText(cancel), type(alertType), picture(pictureOf(alertType))
{
    initUI();
}

void AlertMessageBoxWidget::initUI()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(innerMargins);
    column->setSpacing(titleSpacing);
    if (!title.isEmpty()) {
        auto* label = new QLabel(title, this);
        label->setObjectName(QStringLiteral("title"));
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        column->addWidget(label);
    }
    if (!message.isEmpty())
        column->addLayout(messageRow(), 1);
    else
        column->addStretch(1);
    column->addLayout(buttonRow());
}

QBoxLayout* AlertMessageBoxWidget::messageRow()
{
    auto* symbol = new QLabel(this);
    symbol->setObjectName(QStringLiteral("picture"));
    symbol->setPixmap(pictures::fitted(picture, devicePixelRatioF()));
    auto* label = new QLabel(message, this);
    label->setObjectName(QStringLiteral("message"));
    label->setTextFormat(Qt::RichText);
    label->setWordWrap(true);
    label->setOpenExternalLinks(true);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(pictureSpacing);
    row->addWidget(symbol);
    row->addWidget(label, 1);
    return row;
}

QBoxLayout* AlertMessageBoxWidget::buttonRow()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(dialog_panel::buttonSpacing);
    row->addStretch();
    const auto add = [&](QPushButton* button, const QString& name, void (AlertMessageBoxWidget::*clicked)()) {
        dialog_panel::dressButton(*button, name);
        connect(button, &QPushButton::clicked, this, clicked);
        row->addWidget(button);
    };
    if (!cancelText.isEmpty())
        add(new QPushButton(cancelText, this), QStringLiteral("cancelButton"),
            &AlertMessageBoxWidget::sgCancel);
    auto* ok = new HeldButton(okText, this);
    add(ok, QStringLiteral("okButton"), &AlertMessageBoxWidget::sgOk);
    ok->setDown(true);
    return row;
}

void AlertMessageBoxWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    pictures::smooth(painter);
    painter.drawPixmap(0, 0, pictures::load(QStringLiteral(":/Resources/Background/message_background.png")));
}
