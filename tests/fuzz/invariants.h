#pragma once

#include <QStringList>

class MainWnd;

/// What holds in a window whatever file it has taken up.
namespace invariants {

/// One line for each rule that the window breaks; none if all is well. Changes nothing.
[[nodiscard]] QStringList broken(const MainWnd& window);

/// The targets of the in keys, from the lowest key up.
[[nodiscard]] QList<int> targets(const MainWnd& window);

} // namespace invariants
