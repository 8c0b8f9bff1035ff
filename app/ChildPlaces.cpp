#include "app/ChildPlaces.h"

#include <QWidget>

void ChildPlaces::remember(QWidget* child, int halves)
{
    places.push_back({child, child->x(), halves});
}

void ChildPlaces::apply(int beyond) const
{
    for (const Place& place : places)
        place.child->move(place.formX + beyond * place.halves / 2, place.child->y());
}
