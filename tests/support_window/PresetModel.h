#pragma once

#include "MappingRule.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <map>
#include <string>
#include <utility>

/// What the presets and the selectors must hold after any sequence of what a player can do, told
/// independently of the program: plain words and numbers, no items, no library. Without anchors.
class PresetModel
{
public:
    using Names = std::pair<std::string, std::string>;

    struct Record
    {
        Names names;
        std::string tonicName;
        bool tonicOn = false;
        std::string tonic;
        bool scaleOn = false;
        std::string word;
        bool anchorValid = false;
    };

    static constexpr int count = 36;

    /// `catalogue` holds the labels of the library's words.
    PresetModel(std::map<std::string, Names> catalogue, const std::array<Record, count>& factory)
        : records(factory), library(std::move(catalogue))
    {
        for (int i = 0; i < count; ++i)
            refresh(i);
    }

    static int keyOf(int index)
    {
        for (int key = 21;; ++key)
            if (!isWhite(key) && index-- == 0)
                return key;
    }
    static int indexOf(int key)
    {
        int index = 0;
        for (int k = 21; k < key; ++k)
            index += isWhite(k) ? 0 : 1;
        return index;
    }

    // What the player does
    void recall(int index, bool store = true)
    {
        if (index != active) {
            if (store)
                save(at(active));
            refresh(active);
            active = index;
            match();
            if (store && power)
                load();
        }
        match();
    }
    void neighbour(int step)
    {
        int next = active + step;
        if (next >= 0 && next < count && keyOf(next) == powerKey)
            next += step;
        if (next >= 0 && next < count)
            recall(next);
    }
    void chooseTonic(int semitones)
    {
        tonic = semitones;
        if (tonicSwitch)
            storeTonic(name());
    }
    void clickDegree(int degree)
    {
        char& letter = word[static_cast<std::size_t>(degree)];
        letter = letter == 'x' ? 'o' : 'x';
        storeScale();
    }
    void switchTonic(bool on)
    {
        tonicSwitch = on;
        storeTonic(on ? name() : "");
    }
    void switchScale(bool on)
    {
        scaleSwitch = on;
        storeScale();
    }
    void copy(int index) { clipboard = at(index); }
    void paste(int index)
    {
        at(index) = clipboard;
        if (index != active)
            return;
        tonicSwitch = clipboard.tonicOn;
        scaleSwitch = clipboard.scaleOn;
        match();
        if (!clipboard.word.empty())
            word = clipboard.word;
        if (!clipboard.tonic.empty())
            chooseTonic(semitonesOf(clipboard.tonic));
        match();
    }
    void lockTonic(int index, bool on)
    {
        at(index).tonicOn = on;
        if (index == active) {
            switchTonic(on);
            at(index).tonicOn = on;
            return;
        }
        const int back = active;
        recall(index);
        at(index).tonicName = tonicSwitch ? name() : "";
        recall(back);
    }
    void lockScale(int index, bool on)
    {
        at(index).scaleOn = on;
        if (index == active) {
            switchScale(on);
            return;
        }
        const int back = active;
        recall(index);
        refresh(index);
        recall(back);
    }
    void erase(int index)
    {
        at(index) = {{}, "C", true, "C", true, "xooooooooooo", false};
        if (index == active)
            showOnSelectors("xooooooooooo");
    }
    void reset(int index)
    {
        at(index) = {library.at("xoxoxxoxoxox"), "C", true, "C", true, "xoxoxxoxoxox", false};
        if (index == active)
            showOnSelectors("xoxoxxoxoxox");
    }
    /// A key was pressed: the active preset's names follow the library.
    void match() { refresh(active); }

    /// The pitch that a key of the input keyboard plays now, -1 for none.
    [[nodiscard]] std::map<int, int> mapping() const
    {
        std::map<int, int> targets;
        std::bitset<12> degrees;
        for (std::size_t n = 0; n < 12; ++n)
            degrees[n] = word[n] == 'x';
        const MappingRule rule(tonic, degrees);
        for (int key = 21; key <= 108; ++key)
            targets[key] = !power ? key : isWhite(key) ? rule.target.at(key) : -1;
        return targets;
    }

    std::array<Record, count> records;
    int active = 17;
    Record clipboard;
    bool power = false;
    int powerKey = 49;
    int tonic = 0; ///< semitones above C
    bool tonicSwitch = true, scaleSwitch = true;
    std::string word = "xoxoxxoxoxox";

private:
    static constexpr const char* noteNames[] = {"C",  "C#", "D",  "D#", "E",  "F",
                                                "F#", "G",  "G#", "A",  "A#", "B"};

    Record& at(int index) { return records[static_cast<std::size_t>(index)]; }
    [[nodiscard]] std::string name() const { return noteNames[tonic]; }
    static int semitonesOf(const std::string& note)
    {
        return static_cast<int>(std::find(std::begin(noteNames), std::end(noteNames), note) - noteNames);
    }

    void save(Record& record) const
    {
        record.tonic = tonicSwitch ? name() : "";
        record.tonicOn = record.anchorValid = tonicSwitch;
        record.word = word;
        record.scaleOn = scaleSwitch;
    }
    void load()
    {
        const Record record = at(active);
        tonicSwitch = record.tonicOn;
        if (tonicSwitch && !record.tonic.empty())
            chooseTonic(semitonesOf(record.tonic));
        scaleSwitch = record.scaleOn;
        match();
        if (scaleSwitch && !record.word.empty())
            word = record.word;
    }
    void storeTonic(const std::string& note)
    {
        Record& record = at(active);
        record.tonicOn = true;
        record.tonicName = note;
        if (!note.empty())
            record.tonic = note;
    }
    void storeScale()
    {
        at(active).scaleOn = scaleSwitch;
        at(active).word = word;
        match();
    }
    void showOnSelectors(const std::string& newWord)
    {
        at(active).names = {};
        word = newWord;
        match();
        chooseTonic(0);
        lockTonic(active, true);
        lockScale(active, true);
    }

    [[nodiscard]] bool isHeld(const std::string& unknown) const
    {
        return std::any_of(records.begin(), records.end(),
                           [&](const Record& r) { return r.scaleOn && r.word == unknown; });
    }
    [[nodiscard]] std::string freeNumber() const
    {
        for (int n = 1; n <= 108; ++n) {
            const Names wanted("User", std::to_string(n));
            if (std::none_of(records.begin(), records.end(),
                             [&](const Record& r) { return r.names == wanted; }))
                return wanted.second;
        }
        return "0";
    }
    void refresh(int index)
    {
        for (auto entry = played.begin(); entry != played.end();)
            entry = isHeld(entry->first) ? std::next(entry) : played.erase(entry);
        Record& record = at(index);
        const bool named = record.scaleOn && !record.word.empty();
        record.names = named && library.count(record.word)  ? library.at(record.word)
                       : named && played.count(record.word) ? played.at(record.word)
                                                            : Names();
        if (named && record.names == Names())
            record.names = played[record.word] = {"User", freeNumber()};
    }

    std::map<std::string, Names> library;
    std::map<std::string, Names> played; ///< words of no category, under their numbers
};
