#pragma once

#include "BrowserSnapshot.h"

class MainWnd;
class QWidget;

/// What the program's library holds and its browser shows. Records are asked for by their words: those
/// given, those in categories, and the temporary ones.
[[nodiscard]] BrowserSnapshot snapshotOf(const MainWnd& window, const QStringList& words);

/// The window waits for a moment of its own to bring the browser up to date.
[[nodiscard]] bool isBrowserBehind(const MainWnd& window);

/// The dialog that is shown, or null.
[[nodiscard]] QWidget* shownDialog(const MainWnd& window);

/// A dialog's fields that are seen, in the order of its keyboard walk, as "name: text", and its messages.
[[nodiscard]] QStringList fieldsOf(const QWidget& dialog);
