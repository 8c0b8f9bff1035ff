// The colours of the five key sheets.

#include "tools/pictures/key_looks.h"

#include "tools/pictures/brush.h"
#include "tools/pictures/palette.h"

namespace {

using brush::mix;
using brush::withAlpha;
using namespace palette;

KeyLook plainLook()
{
    return {QStringLiteral("keyboardB"),
            {mix(ivory, ivoryShade, 0.55), ivory, ivoryLip, Qt::transparent, 200},
            {mix(ivoryShade, metalDark, 0.30), mix(ivoryShade, metal, 0.18), mix(ivoryLip, graphite, 0.3),
             Qt::transparent, 90},
            {graphite, mix(graphite, graphiteLight, 0.65), mix(graphite, graphiteLight, 0.35), 120},
            {mix(graphite, Qt::black, 0.3), mix(graphite, graphiteLight, 0.25),
             mix(graphite, graphiteLight, 0.1), 60}};
}

/// Idle keys keep their material and only take the light on; pressed ones are lit through.
KeyLook litLook(const char* name, const QColor& light, const QColor& full, const QColor& dark)
{
    return {QLatin1String(name),
            {mix(mix(ivory, ivoryShade, 0.4), light, 0.9), mix(ivory, full, 0.52),
             mix(full, ivoryShade, 0.25), Qt::transparent, 200},
            {mix(full, dark, 0.35), full, mix(full, dark, 0.45), withAlpha(mix(light, Qt::white, 0.45), 215),
             150},
            {mix(graphite, dark, 0.6), mix(full, dark, 0.5), mix(full, light, 0.25), 150},
            {mix(full, dark, 0.45), mix(full, light, 0.75), mix(full, light, 0.15), 190}};
}

KeyLook asleepLook()
{
    const QColor face = mix(metalDark, ivoryShade, 0.22);
    return {
        QStringLiteral("keyboardB_deactive"),
        {mix(face, graphite, 0.12), face, mix(face, graphite, 0.35), Qt::transparent, 45},
        {mix(face, graphite, 0.34), mix(face, graphite, 0.18), mix(face, graphite, 0.4), Qt::transparent, 25},
        {mix(graphite, metalDark, 0.40), mix(graphite, metalDark, 0.62), mix(graphite, metalDark, 0.38), 40},
        {mix(graphite, metalDark, 0.26), mix(graphite, metalDark, 0.44), mix(graphite, metalDark, 0.24), 25}};
}

} // namespace

std::vector<KeyLook> keyLooks()
{
    return {plainLook(), litLook("keyboardB_IN", blueLight, blue, blueDark),
            litLook("keyboardB_OUT", amberLight, amber, amberDark), asleepLook(),
            litLook("keyboardB_LEARN", greenLight, green, greenDark)};
}
