#pragma once

#include "screen/AbstractDialog.h"
#include "screen/AlertMessageBoxWidget.h"

/// Shows a message, and asks if it has a cancel button.
class AlertWidget : public AbstractDialog
{
    Q_OBJECT

public:
    AlertWidget(const QString& title, const QString& text, const QString& okText, const QString& cancelText,
                alert_type type, QWidget* parent);

    AlertMessageBoxWidget* const box;

public slots:
    void accept() override;
    void reject() override;
};
