#pragma once

#include <vector>

class QWidget;

/// Where a window's children stand in the form, and where they go when the window is wider than that.
class ChildPlaces
{
public:
    /// `child` stands where the form has it now. It moves by `halves` halves of the width beyond the form's:
    /// 1 keeps it in the middle, 2 at the right.
    void remember(QWidget* child, int halves);
    /// Moves all of them; `beyond` in pixels.
    void apply(int beyond) const;

private:
    struct Place
    {
        QWidget* child;
        int formX;
        int halves;
    };
    std::vector<Place> places;
};
