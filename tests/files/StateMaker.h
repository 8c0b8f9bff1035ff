#pragma once

#include "Hand.h"
#include "app/MainWnd.h"

#include <QStringList>

#include <random>

class DatabaseLibrary;

/// A player with a long patience, who does one thing after another to a window, at random by a seed: plays,
/// drags, switches, edits the library, looks around in the display. Everything happens by the program's own
/// ways. The window is the global one and lives longer.
class StateMaker
{
public:
    StateMaker(MainWnd& instrument, unsigned seed);

    /// Does one thing, and says which.
    QString step();
    /// 0 to count - 1.
    int number(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }

    /// Ports that no system has, but which a file may remember.
    static const QStringList portNames;
    /// A key of the store that no version knows yet.
    static const QString futureKey;

private:
    struct Move
    {
        int weight;
        const char* name;
        void (StateMaker::*run)();
    };
    static const std::vector<Move>& moves();

    // Presets and stage (StateMaker.cpp)
    void recallByKey();
    void recallByFlag();
    void walkThePresets();
    void useTheMenu();
    void answerAQuestion();
    void playWhites();
    void dragThePower();
    void dragAFlag();
    void dragTheAnchors();

    // Selectors and display (StateMaker_panel.cpp)
    void chooseATonic();
    void flipDegrees();
    void flipASwitch();
    void switchThePower();
    void changeTheScene();
    void openOrCloseTheLibrary();
    void selectPorts();
    void nameTheFile();

    // Library (StateMaker_library.cpp)
    void addACategory();
    void renameACategory();
    void deleteACategory();
    void addThePlayedScale();
    void editAScale();
    void copyAScale();
    void moveAScale();
    void moveAScaleWithin();
    void deleteAScale();
    void standInACategory();

    [[nodiscard]] bool chance(int percent) { return number(100) < percent; }
    [[nodiscard]] HeaderItem& anyFlag();
    void play(int note);
    void question(bool erase);
    [[nodiscard]] QString anyText();
    [[nodiscard]] QString anyCategory();
    [[nodiscard]] QString anyWordOf(const QString& category);
    void libraryChanged(const QString& word);

    MainWnd& window;
    DatabaseLibrary& library;
    Hand hand;
    std::mt19937 random;
};
