#include "gestures.h"

#include "StagePlaces.h"
#include "browser_places.h"

#include <QPoint>

#include <iterator>

namespace gestures {
namespace {

using namespace browser_places;

constexpr QPoint nowhere(940, 150), besideTheLists(473, 291), creditsButton(289, 224);
constexpr QPoint categoryRow(290, 200), scaleRow(430, 200), inRow(411, 203), outRow(610, 203);
constexpr int rowHeight = 15, pitchesOfHand = 31;

/// Puts one gesture together.
class Words
{
public:
    explicit Words(std::mt19937& source) : numbers(source) {}

    [[nodiscard]] int below(int bound) { return static_cast<int>(numbers() % static_cast<unsigned>(bound)); }
    template <std::size_t count>
    [[nodiscard]] int oneOf(const int (&list)[count])
    {
        return list[below(static_cast<int>(count))];
    }

    Words& move(QPoint to)
    {
        return add({QStringLiteral("mousemove"), QString::number(to.x()), QString::number(to.y())});
    }
    Words& rest(const char* seconds) { return add({QStringLiteral("sleep"), QLatin1String(seconds)}); }
    Words& click(QPoint at, int button = 1)
    {
        return move(at).add({QStringLiteral("click"), QString::number(button)});
    }
    Words& key(const char* name) { return add({QStringLiteral("key"), QLatin1String(name)}); }
    Words& press() { return add({QStringLiteral("mousedown"), QStringLiteral("1")}); }
    Words& release() { return add({QStringLiteral("mouseup"), QStringLiteral("1")}); }
    Words& drag(QPoint from, QPoint to, int steps = 6)
    {
        move(from).press();
        for (int i = 1; i <= steps; ++i)
            move(from + (to - from) * i / steps).rest("0.015");
        return release();
    }
    Words& width(int pixels)
    {
        return add({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                    QStringLiteral("^Sorvane$"), QStringLiteral("windowsize"), QString::number(pixels),
                    QStringLiteral("480")});
    }

    Words& add(const QStringList& more)
    {
        words += more;
        return *this;
    }

    QStringList words;

private:
    std::mt19937& numbers;
};

int whiteKeyOfHand(Words& words)
{
    static constexpr int keys[] = {21, 23, 24, 26, 28, 29, pitchesOfHand};
    return words.oneOf(keys);
}

int flagOfHand(Words& words) // far from where the power button stands at the start
{
    static constexpr int keys[] = {61, 63, 66, 68, 70, 73, 75, 78, 80, 82, 85, 87, 90, 92, 94};
    return words.oneOf(keys);
}

int powerPlace(Words& words)
{
    static constexpr int keys[] = {49, 58, 75};
    return words.oneOf(keys);
}

// What the hand does

void inKey(Words& words)
{
    words.click(stage::keyPlace(stage::Keyboard::in, whiteKeyOfHand(words)));
}

void outKey(Words& words)
{
    words.click(stage::keyPlace(stage::Keyboard::out, whiteKeyOfHand(words)));
}

void glissando(Words& words)
{
    const QPoint low = stage::keyPlace(stage::Keyboard::in, 21),
                 high = stage::keyPlace(stage::Keyboard::in, pitchesOfHand);
    words.drag(words.below(2) ? low : high, words.below(2) ? low : high, 12);
}

void wander(Words& words)
{
    for (int i = 0; i < 12; ++i)
        words.move({words.below(950), words.below(480)}).rest("0.02");
}

// The lists are called by their key, so that the rows are there.
void portRow(Words& words, int rows)
{
    if (rows == 0)
        return;
    const QPoint row = (words.below(2) ? inRow : outRow) + QPoint(0, rowHeight * words.below(rows));
    words.key("ctrl+m")
        .click(row)
        .rest("0.3")
        .click(besideTheLists)
        .rest("0.2")
        .click(row)
        .click(besideTheLists);
}

void credits(Words& words)
{
    words.click(creditsButton).rest("0.4").click(creditsButton);
}

void narrowWindow(Words& words)
{
    for (int i = 0; i < 3; ++i)
        words.width(677 + words.below(276)).rest("0.1");
    words.width(952).rest("0.1");
}

void lookAtMenu(Words& words)
{
    words.click(stage::flagPlace(flagOfHand(words)), 3).rest("0.15").key("Escape").rest("0.05");
}

void chooseInMenu(Words& words)
{
    words.click(stage::flagPlace(flagOfHand(words)), 3).rest("0.15");
    for (int downs = 1 + words.below(11); downs > 0; --downs)
        words.key("Down");
    words.key("Return").rest("0.1").key(words.below(2) ? "Escape" : "Return").rest("0.05");
}

// The key for the ports shuts the library, so that the next one opens it. No category is clicked twice in a
// row: a double click asks for its name, and while something is asked black keys recall nothing.
void browse(Words& words, bool choose)
{
    words.key("ctrl+m").key("ctrl+l").rest("0.1");
    int row = 0;
    for (int i = 0; i < 5; ++i) {
        row = (row + 1 + words.below(3)) % 4;
        for (int notches = words.below(6); notches > 0; --notches)
            words.click(words.below(2) ? categoryRow : scaleRow, 4 + words.below(2));
        words.click(categoryRow + QPoint(0, rowHeight * row)).rest("0.1");
        if (choose)
            words.click(scaleRow + QPoint(0, rowHeight * words.below(4))).rest("0.1");
    }
    words.rest("0.4").key("ctrl+l");
}

void tonic(Words& words)
{
    static constexpr int whites[] = {0, 2, 4, 5, 7, 9, 11};
    if (words.below(2))
        words.click(stage::tonicPlace(words.oneOf(whites)));
    else
        words.drag(stage::tonicPlace(words.oneOf(whites)), stage::tonicPlace(words.oneOf(whites)));
}

void scale(Words& words)
{
    if (words.below(2))
        words.click(degree(1 + words.below(11)));
    else
        words.drag(degree(2), degree(4 + words.below(8)));
}

void flag(Words& words)
{
    words.click(stage::flagPlace(flagOfHand(words)));
}

void flagToFlag(Words& words)
{
    words.drag(stage::flagPlace(flagOfHand(words)), stage::flagPlace(flagOfHand(words)));
}

void neighbour(Words& words)
{
    words.key(words.below(2) ? "ctrl+Left" : "ctrl+Right");
}

void togglePower(Words& words)
{
    if (words.below(2))
        words.key("space");
    else
        words.click(stage::powerSquare(powerPlace(words)));
}

void dragPower(Words& words)
{
    words.drag(stage::powerSleeve(powerPlace(words)), stage::flagPlace(powerPlace(words)));
}

void anchor(Words& words)
{
    constexpr int furthest = 250; // pixels: beyond it keys in the middle may find no note
    words.move(stage::anchorPlace(0)).press();
    for (int i = 0; i < 12; ++i)
        words.move(stage::anchorPlace(words.below(2 * furthest) - furthest)).rest("0.02");
    words.move(stage::anchorPlace(0)).rest("0.05").release();
}

void tab(Words& words)
{
    for (int presses = 1 + words.below(6); presses > 0; --presses)
        words.key(words.below(3) ? "Tab" : "shift+Tab");
}

using Act = void (*)(Words&, int rows);

template <void (*act)(Words&)>
void alone(Words& words, int)
{
    act(words);
}

void lookAtLibrary(Words& words, int)
{
    browse(words, false);
}

void chooseScales(Words& words, int)
{
    browse(words, true);
}

const QList<Act>& acts(Repertoire repertoire)
{
    static const QList<Act> powerOff{alone<inKey>,     alone<inKey>, alone<outKey>,  alone<glissando>,
                                     alone<glissando>, portRow,      alone<credits>, alone<narrowWindow>,
                                     alone<wander>,    alone<tab>};
    static const QList<Act> looking{alone<outKey>,       portRow,           lookAtLibrary, lookAtLibrary,
                                    alone<narrowWindow>, alone<lookAtMenu>, alone<wander>, alone<credits>,
                                    alone<tab>};
    static const QList<Act> power{alone<togglePower>, alone<togglePower>, alone<tonic>,     alone<scale>,
                                  alone<inKey>,       alone<outKey>,      alone<glissando>, alone<dragPower>,
                                  alone<flag>,        alone<wander>};
    static const QList<Act> presets{alone<flag>,  alone<flag>,  alone<flagToFlag>, alone<neighbour>,
                                    alone<tonic>, alone<scale>, alone<outKey>,     alone<chooseInMenu>,
                                    chooseScales, alone<wander>};
    static const QList<Act> anchors{alone<anchor>, alone<anchor>, alone<outKey>, alone<wander>};
    switch (repertoire) {
    case Repertoire::powerOff:
        return powerOff;
    case Repertoire::looking:
        return looking;
    case Repertoire::power:
        return power;
    case Repertoire::presets:
        return presets;
    default:
        return anchors;
    }
}

} // namespace

QStringList any(Repertoire repertoire, std::mt19937& numbers, int rows)
{
    const QList<Act>& choice = acts(repertoire);
    Words words(numbers);
    choice.at(words.below(choice.size()))(words, rows);
    return words.rest("0.03").words;
}

QList<QStringList> tidyUp()
{
    const QString place = QString::number(nowhere.x()), height = QString::number(nowhere.y());
    return {{QStringLiteral("mouseup"), QStringLiteral("1"), QStringLiteral("key"), QStringLiteral("Escape"),
             QStringLiteral("key"), QStringLiteral("Escape"), QStringLiteral("mousemove"), place, height},
            {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
             QStringLiteral("^Sorvane$"), QStringLiteral("windowsize"), QStringLiteral("952"),
             QStringLiteral("480"), QStringLiteral("windowfocus")}};
}

QStringList findFileDialog()
{
    return {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
            QStringLiteral("a database$")};
}

QList<QStringList> answerFileDialog(const QString& shortcut, const QString& path)
{
    const QStringList waitForIt{QStringLiteral("search"),        QStringLiteral("--sync"),
                                QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                                QStringLiteral("a database$"),   QStringLiteral("windowfocus"),
                                QStringLiteral("--sync")};
    return {{QStringLiteral("key"), shortcut},
            waitForIt,
            {QStringLiteral("key"), QStringLiteral("ctrl+a")},
            {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("10"), path},
            {QStringLiteral("key"), QStringLiteral("Return")}};
}

} // namespace gestures
