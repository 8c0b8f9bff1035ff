#include "state_pairs.h"

#include "tools/pictures/palette.h"

#include <QPainter>

namespace state_pairs {

namespace {

constexpr KeyLook idleIn{"idle", KeySheet::plain, KeyCell::idle, KeyShine::blue},
    idleOut{"idle", KeySheet::plain, KeyCell::idle, KeyShine::yellow},
    pressed{"pressed", KeySheet::plain, KeyCell::pressed, KeyShine::none},
    playedIn{"played", KeySheet::in, KeyCell::pressed, KeyShine::none},
    sounding{"sounding", KeySheet::out, KeyCell::pressed, KeyShine::none},
    ofScale{"of the scale", KeySheet::out, KeyCell::idle, KeyShine::yellow},
    awakeBlack{"awake", KeySheet::in, KeyCell::idle, KeyShine::blue},
    asleep{"out of range", KeySheet::deactive, KeyCell::idle, KeyShine::blue};

} // namespace

QStringList power(std::initializer_list<const char*> states)
{
    QStringList paths;
    for (const char* state : states)
        paths << QStringLiteral("Power/POWERBUTTON%1").arg(QLatin1String(state));
    return paths;
}

QStringList flag(int type, std::initializer_list<const char*> states)
{
    QStringList paths;
    for (const char* state : states)
        paths << QStringLiteral("Headers/Header%1sharp_%2").arg(type).arg(QLatin1String(state));
    return paths;
}

QStringList toggle(const char* row, const char* state)
{
    QStringList paths{QStringLiteral("Switch/%1SwitchNeutral").arg(QLatin1String(row))};
    if (state)
        paths << QStringLiteral("Switch/%1Switch%2").arg(QLatin1String(row), QLatin1String(state));
    return paths;
}

QImage pictureOf(const Look& look)
{
    QImage result;
    for (const QString& layer : look.layers) {
        const QImage image(QStringLiteral(":/Resources/%1.png").arg(layer));
        if (image.isNull())
            return {};
        if (result.isNull()) {
            result = QImage(image.size(), QImage::Format_RGB32);
            result.fill(look.ground);
        }
        QPainter(&result).drawImage(0, 0, image);
    }
    return result;
}

QImage pictureOf(const KeyLook& look, KeyShape shape)
{
    const QPixmap picture = key_pictures::picture(look.sheet, shape, look.cell, look.shine);
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(palette::well);
    QPainter(&image).drawPixmap(0, 0, picture);
    return image;
}

/// Every pair of states of the flags that a user may have to tell apart.
std::vector<Pair> ofFlags()
{
    std::vector<Pair> pairs;
    for (int type = 1; type <= 5; ++type) {
        const Look idle{"idle", flag(type, {"deactive"}), rail},
            active{"active", flag(type, {"active"}), rail}, target{"target", flag(type, {"Switch"}), rail};
        const Look menu{"menu", flag(type, {"deactive", "SwitchContextMenu"}), rail},
            activeMenu{"menu of the active one", flag(type, {"active", "SwitchContextMenu"}), rail};
        const Look lying{"active over keys", flag(type, {"active"}), palette::ivory},
            dragged{"dragged over keys", flag(type, {"ActiveDropShadow"}), palette::ivory};
        for (const Pair& pair :
             {Pair{idle, active, plain}, Pair{idle, target, plain}, Pair{active, target, plain},
              Pair{idle, menu, rim}, Pair{active, activeMenu, rim}, Pair{target, menu, rim},
              Pair{lying, dragged, rim}})
            pairs.push_back(pair);
    }
    return pairs;
}

std::vector<Pair> ofPower()
{
    const auto look = [](const char* name, std::initializer_list<const char*> states) {
        return Look{name, power(states), palette::graphite};
    };
    std::vector<Pair> pairs{{look("off", {"Off"}), look("on", {"On"}), plain}};
    for (const bool on : {false, true}) {
        const char* state = on ? "On" : "Off";
        const Look lies = look(state, {state}), hover = look("hover", {state, "Hover"}),
                   pressed = look("pressed", {state, "Press", "Hover"}),
                   dragged = look("dragged", {on ? "On_Drop" : "Off_Drop"}),
                   over = look("over a target", {"On_Switch"});
        for (const Pair& pair :
             {Pair{lies, hover, rim}, Pair{lies, pressed, rim}, Pair{hover, pressed, rim},
              Pair{lies, dragged, rim}, Pair{lies, over, plain}, Pair{dragged, over, plain}})
            pairs.push_back(pair);
    }
    return pairs;
}

std::vector<Pair> ofSwitches()
{
    std::vector<Pair> pairs;
    for (const char* row : {"Tonic", "Scale"}) {
        const Look neutral{"neutral", toggle(row, nullptr), palette::metal},
            off{"off", toggle(row, "Off"), palette::metal}, on{"on", toggle(row, "On"), palette::metal};
        for (const Pair& pair : {Pair{neutral, off, plain}, Pair{neutral, on, plain}, Pair{off, on, plain}})
            pairs.push_back(pair);
    }
    return pairs;
}

std::vector<Pair> ofButtons()
{
    const auto button = [](const char* state) {
        return Look{
            state, {QStringLiteral("CenterScreen/Button_%1").arg(QLatin1String(state))}, palette::display};
    };
    std::vector<Pair> pairs{{button("neutral"), button("checked"), plain},
                            {button("hover"), button("checked"), plain},
                            {button("neutral"), button("hover"), soft},
                            {button("neutral"), button("disabled"), plain}};
    const auto small = [](const char* name, const char* state, const QColor& ground) {
        return Look{
            state,
            {QStringLiteral("LibraryScreen/Buttons/%1_%2").arg(QLatin1String(name), QLatin1String(state))},
            ground};
    };
    for (const char* name :
         {"LibCatPlus", "LibCatMinus", "LibCatRename", "LibAdd", "LibNameCopy", "LibNameMove",
          "LibNameDelete", "LibDescrAbb1", "LibDescrAbb2", "LibAccessOpen", "LibAccessClose"})
        pairs.push_back(
            {small(name, "neutral", palette::display), small(name, "active", palette::display), plain});
    pairs.push_back({small("LibAccessOpen", "neutral", palette::metal),
                     small("LibAccessClose", "neutral", palette::metal), rim});
    return pairs;
}

const std::vector<KeyPair>& ofKeys()
{
    static const std::vector<KeyPair> pairs{

        {false, idleIn, playedIn},    {false, idleIn, asleep},    {false, playedIn, asleep},
        {false, idleIn, pressed},     {false, idleOut, sounding}, {false, idleOut, ofScale},
        {false, ofScale, sounding},   {false, pressed, playedIn}, {false, pressed, sounding},
        {true, awakeBlack, playedIn}, {true, idleIn, awakeBlack}, {true, idleOut, ofScale},
        {true, idleOut, sounding},    {true, ofScale, sounding},  {true, idleOut, pressed},
    };
    return pairs;
}

} // namespace state_pairs
