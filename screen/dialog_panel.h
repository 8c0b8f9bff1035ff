#pragma once

#include <QMargins>
#include <QString>

class QPushButton;

/// What the panels of the dialogs have in common. Sizes are in logical pixels.
namespace dialog_panel {

inline constexpr QMargins margins(33, 30, 33, 30);
inline constexpr int fieldHeight = 22;
inline constexpr int buttonSpacing = 10;

/// Gives a button its size and its object name. It takes no focus and is no default button: Return and Escape
/// reach the dialog from every field.
void dressButton(QPushButton& button, const QString& name);

} // namespace dialog_panel
