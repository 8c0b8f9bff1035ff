#pragma once

#include "tools/pictures/palette.h"

#include <QList>

/// Every colour that the drawings may use.
[[nodiscard]] inline const QList<QColor>& paletteColors()
{
    using namespace palette;
    static const QList<QColor> colors{metal,     metalLight, metalDark, metalEdge,    well,
                                      wellLight, engraving,  ivory,     ivoryShade,   ivoryLip,
                                      gap,       graphite,   blue,      blueLight,    blueDark,
                                      amber,     amberLight, amberDark, graphiteLight};
    return colors;
}
