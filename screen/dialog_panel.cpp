#include "screen/dialog_panel.h"

#include <QPushButton>

void dialog_panel::dressButton(QPushButton& button, const QString& name)
{
    constexpr QSize size(105, 23);
    button.setObjectName(name);
    button.setFocusPolicy(Qt::NoFocus);
    button.setAutoDefault(false);
    button.setMinimumSize(size);
}
