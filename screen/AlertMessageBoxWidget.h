#pragma once

#include <QPixmap>
#include <QWidget>

class QBoxLayout;
class QPushButton;

/// What an alert's picture says.
enum alert_type : int { alert_information = 0, alert_warning = 1, alert_error = 2 };

/// The panel of an alert: title, picture and message, buttons. An empty title, message or cancel text leaves
/// its part out; an empty OK text is "Ok". The message is rich text.
class AlertMessageBoxWidget : public QWidget
{
    Q_OBJECT

public:
    explicit AlertMessageBoxWidget(const QString& title, const QString& message,
                                   const QString& okText = tr("Ok"), const QString& cancelText = tr("Cancel"),
                                   alert_type type = alert_information, QWidget* parent = nullptr);

    const QString title;
    const QString message;
    const QString okText;
    const QString cancelText;
    const alert_type type;
    const QPixmap picture;

signals:
    void sgOk();
    void sgCancel();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void initUI();
    [[nodiscard]] QBoxLayout* messageRow();
    [[nodiscard]] QBoxLayout* buttonRow();
};
