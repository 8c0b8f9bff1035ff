#pragma once

#include <QPoint>
#include <QString>

/// What the display shows in each scene, where a hand can leave it, and what shows then. Written down from
/// the rules, without the program.
namespace scene_table {

enum Scene { none = 0, plain = 1, clean = 2, ports = 3, credits = 4, library = 5 };

struct Look
{
    Scene scene;
    const char* name;
    bool portView, libraryView, versionLabel, texts, leftButtons, rightButtons, hiddenLayer, portsChecked;
};

constexpr bool shows = true, hides = false, all = true, on = true, off = false;

constexpr Look looks[] = {
    //                   ports  library version texts  left   right  layer  check
    {plain, "default", hides, hides, hides, shows, all, all, hides, off},
    {clean, "clean", hides, hides, hides, shows, hides, hides, hides, off},
    {ports, "ports", shows, hides, hides, hides, all, hides, hides, on},
    {credits, "credits", hides, hides, shows, hides, all, all, shows, off},
    {library, "library", hides, shows, hides, hides, hides, hides, hides, off},
};

/// What a hand does: a click at a place of the stage, or a key.
struct Action
{
    const char* name;
    QPoint place;
    const char* key;
};

constexpr Action actions[] = {
    {"ports button", {289, 196}, nullptr},
    {"credits button", {289, 224}, nullptr},
    {"site button", {289, 252}, nullptr},
    {"manual button", {659, 196}, nullptr},
    {"Facebook button", {659, 224}, nullptr},
    {"YouTube button", {659, 252}, nullptr},
    // Each spot lies in the hit area that it is named by and in the large second one, the last also in "right
    // 4".
    {"middle", {473, 250}, nullptr},
    {"beside the buttons", {222, 199}, nullptr}, // in the second one alone
    {"top", {222, 188}, nullptr},
    {"left", {222, 240}, nullptr},
    {"right 4", {718, 278}, nullptr},
    {"right 3", {730, 270}, nullptr},
    {"foot of the middle", {473, 281}, nullptr}, // below the view of the selectors: nothing is there
    {"foot of the left", {222, 281}, nullptr},
    {"library button", {774, 265}, nullptr},
    {"Space", {}, "space"},
    {"Ctrl+M", {}, "ctrl+m"},
    {"Ctrl+L", {}, "ctrl+l"},
};

/// `behind` the library: the scene it lies over.
struct Way
{
    Scene from, behind;
    const char* action;
    Scene to;
    const char* page; ///< what the browser is sent to
};

constexpr char site[] = "https://sorvane.example/", manual[] = "https://sorvane.example/sorvane-manual.pdf",
               facebook[] = "https://facebook.example/sorvane", youtube[] = "https://youtube.example/sorvane";

constexpr Way ways[] = {
    {plain, none, "ports button", ports, nullptr},
    {plain, none, "credits button", credits, nullptr},
    {plain, none, "site button", plain, site},
    {plain, none, "manual button", plain, manual},
    {plain, none, "Facebook button", plain, facebook},
    {plain, none, "YouTube button", plain, youtube},
    {plain, none, "middle", clean, nullptr},
    {plain, none, "beside the buttons", plain, nullptr},
    {plain, none, "top", plain, nullptr},
    {plain, none, "left", plain, nullptr},
    {plain, none, "right 4", plain, nullptr},
    {plain, none, "right 3", plain, nullptr},
    {plain, none, "foot of the middle", plain, nullptr},
    {plain, none, "foot of the left", plain, nullptr},
    {plain, none, "library button", library, nullptr},
    {plain, none, "Space", plain, nullptr},
    {plain, none, "Ctrl+M", ports, nullptr},
    {plain, none, "Ctrl+L", library, nullptr},

    {clean, none, "middle", plain, nullptr},
    {clean, none, "beside the buttons", plain, nullptr},
    {clean, none, "top", plain, nullptr},
    {clean, none, "left", plain, nullptr},
    {clean, none, "right 4", plain, nullptr},
    {clean, none, "right 3", plain, nullptr},
    {clean, none, "foot of the middle", clean, nullptr},
    {clean, none, "foot of the left", clean, nullptr},
    {clean, none, "library button", library, nullptr},
    {clean, none, "Space", clean, nullptr},
    {clean, none, "Ctrl+M", ports, nullptr},
    {clean, none, "Ctrl+L", library, nullptr},

    {ports, none, "ports button", plain, nullptr},
    {ports, none, "credits button", credits, nullptr},
    {ports, none, "site button", plain, site},
    {ports, none, "middle", ports, nullptr},
    {ports, none, "beside the buttons", ports, nullptr},
    {ports, none, "top", plain, nullptr},
    {ports, none, "left", ports, nullptr},
    {ports, none, "right 4", ports, nullptr},
    {ports, none, "right 3", plain, nullptr},
    {ports, none, "foot of the middle", ports, nullptr},
    {ports, none, "foot of the left", ports, nullptr},
    {ports, none, "library button", library, nullptr},
    {ports, none, "Space", ports, nullptr},
    {ports, none, "Ctrl+M", ports, nullptr},
    {ports, none, "Ctrl+L", library, nullptr},

    {credits, none, "ports button", ports, nullptr},
    {credits, none, "credits button", credits, nullptr},
    {credits, none, "site button", plain, site},
    {credits, none, "manual button", plain, manual},
    {credits, none, "Facebook button", plain, facebook},
    {credits, none, "YouTube button", plain, youtube},
    {credits, none, "middle", credits, nullptr},
    {credits, none, "beside the buttons", credits, nullptr},
    {credits, none, "top", plain, nullptr},
    {credits, none, "left", credits, nullptr},
    {credits, none, "right 4", plain, nullptr},
    {credits, none, "right 3", plain, nullptr},
    {credits, none, "foot of the middle", credits, nullptr},
    {credits, none, "foot of the left", credits, nullptr},
    {credits, none, "library button", library, nullptr},
    {credits, none, "Space", credits, nullptr},
    {credits, none, "Ctrl+M", ports, nullptr},
    {credits, none, "Ctrl+L", library, nullptr},

    // The lists and buttons of the library lie under most of these.
    {library, plain, "middle", library, nullptr},
    {library, plain, "beside the buttons", library, nullptr},
    {library, plain, "top", library, nullptr},
    {library, plain, "left", library, nullptr},
    {library, plain, "right 4", library, nullptr},
    {library, plain, "right 3", library, nullptr},
    {library, plain, "foot of the middle", library, nullptr},
    {library, plain, "foot of the left", library, nullptr},
    {library, plain, "library button", plain, nullptr},
    {library, plain, "Space", plain, nullptr},
    {library, plain, "Ctrl+M", ports, nullptr},
    {library, plain, "Ctrl+L", plain, nullptr},
    {library, clean, "library button", clean, nullptr},
    {library, clean, "Space", clean, nullptr},
    {library, clean, "Ctrl+L", clean, nullptr},
    {library, ports, "library button", ports, nullptr},
    {library, ports, "Space", ports, nullptr},
    {library, ports, "Ctrl+L", ports, nullptr},
    {library, ports, "Ctrl+M", ports, nullptr},
    {library, credits, "library button", credits, nullptr},
    {library, credits, "Space", credits, nullptr},
    {library, credits, "Ctrl+L", credits, nullptr},
    {library, credits, "Ctrl+M", ports, nullptr},
};

[[nodiscard]] inline const Look& lookOf(Scene scene)
{
    return looks[scene - 1];
}

[[nodiscard]] inline const Action* actionNamed(const QString& name)
{
    for (const Action& action : actions)
        if (name == QLatin1String(action.name))
            return &action;
    return nullptr;
}

/// The action that leads from the default scene there.
[[nodiscard]] constexpr const char* wayTo(Scene scene)
{
    constexpr const char* names[] = {nullptr,        nullptr,          "middle",
                                     "ports button", "credits button", "library button"};
    return names[scene];
}

} // namespace scene_table
