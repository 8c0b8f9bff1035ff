#pragma once

#include <QStringList>

class MainWnd;
class QGraphicsScene;
class QWidget;

/// The words that a user reads or hears read out, each behind its place: "buttonCredits.toolTip=About
/// Sorvane". The same window built anew gives the same places in the same order.
namespace shown_words {

/// Of a widget and all in it: texts, tool tips, accessible names and descriptions.
[[nodiscard]] QStringList of(const QWidget& widget);

/// The tool tips of a scene.
[[nodiscard]] QStringList of(const QGraphicsScene& scene);

/// Of the window, its scenes and the menu of the presets.
[[nodiscard]] QStringList of(const MainWnd& window);

} // namespace shown_words
