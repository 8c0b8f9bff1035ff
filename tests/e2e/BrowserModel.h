#pragma once

#include "BrowserSnapshot.h"

#include <vector>

/// What the library and its browser should be after each thing that a hand does to them. It is a bookkeeping
/// of its own, which knows the factory's tables and nothing else of the program.
class BrowserModel
{
public:
    struct Names
    {
        QString abbr1, abbr2, title, body;
    };

    /// A fresh start: the power off, the library shut.
    BrowserModel();

    // The stage
    void setPower(bool on);
    void setOpen(bool open);
    void setScaleSwitch(bool on);
    /// The scale selector shows another word.
    void play(const QString& word);
    void toggleDegree(int degree);
    /// The preset of that black key is recalled.
    void recall(int blackKey);

    // The lists
    void pressCategory(const QString& name);
    void pressScale(int row);
    void doubleClickScale(int row);

    // What changes the library
    void createCategory(const QString& name);
    void renameCategory(const QString& name);
    void deleteCategory();
    void deleteScale();
    void addPlayed(const Names& names, const QString& category);
    void edit(const QString& word, const Names& names);
    void reorder(int from, int to);
    void dropOnCategory(int row, const QString& target, bool copy);
    void copyByMenu(const QString& target);
    void moveByMenu(const QString& target);

    // What a hand needs to know
    [[nodiscard]] QStringList categoryNames() const;
    [[nodiscard]] QString currentName() const;
    [[nodiscard]] QStringList words() const; ///< of the current category
    [[nodiscard]] QString chosenWord() const;
    [[nodiscard]] QString describedWord() const { return described; }
    [[nodiscard]] QString playedWord() const { return played; }
    [[nodiscard]] Names namesOf(const QString& word) const;
    [[nodiscard]] QStringList knownWords() const { return records.keys(); }

    [[nodiscard]] BrowserSnapshot snapshot() const;

private:
    struct Category
    {
        QString name;
        QStringList words;
        int remembered;
    };
    struct Record
    {
        Names names;
        bool custom;
    };
    struct Flag
    {
        bool scaleOn;
        QString word, abbr1, abbr2;
    };

    Category* find(const QString& name);
    [[nodiscard]] int indexOf(const QString& name) const;
    [[nodiscard]] bool isPlaced(const QString& word) const;
    [[nodiscard]] int freeUserNumber() const;
    void follow();
    void renew(Flag& flag);
    void renewFlags(const QString& word);
    void dropUnusedRecords();

    QList<Category> categories;
    QMap<QString, Record> records;
    std::vector<Flag> flags;
    std::size_t activeFlag;
    bool power = false, open = false, scaleSwitch = true, mark = false;
    int current = -1;
    QString played, described;
};
