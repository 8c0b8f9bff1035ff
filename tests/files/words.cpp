#include "words.h"

#include <algorithm>

namespace words {
namespace {

QString wordOf(const std::set<int>& notes)
{
    QString word;
    for (int note = 0; note < octave; ++note)
        word += QLatin1Char(notes.count(note) == 1 ? 'x' : 'o');
    return word;
}

int noteOf(const QString& word, int degree)
{
    const std::set<int> all = notes(word);
    const int index = degree - 1;
    return index < static_cast<int>(all.size()) ? *std::next(all.begin(), index) : -1;
}

} // namespace

std::set<int> notes(const QString& word, int tonic)
{
    std::set<int> all;
    for (int i = 0; i < word.size(); ++i)
        if (word.at(i) == QLatin1Char('x'))
            all.insert((i + tonic) % octave);
    return all;
}

bool includes(const std::set<int>& all, const std::set<int>& some)
{
    return !some.empty() && std::includes(all.begin(), all.end(), some.begin(), some.end());
}

std::vector<int> steps(const QString& word)
{
    const std::set<int> all = notes(word);
    std::vector<int> found;
    for (auto note = all.begin(); note != all.end(); ++note)
        found.push_back((std::next(note) == all.end() ? octave : *std::next(note)) - *note);
    return found;
}

QString mode(const QString& word, int degree)
{
    return wordOf(notes(word, octave - noteOf(word, degree)));
}

QString without(const QString& word, std::initializer_list<int> degrees)
{
    std::set<int> rest = notes(word);
    for (const int degree : degrees)
        rest.erase(noteOf(word, degree));
    return wordOf(rest);
}

QString only(const QString& word, std::initializer_list<int> degrees)
{
    std::set<int> some;
    for (const int degree : degrees)
        some.insert(noteOf(word, degree));
    return wordOf(some);
}

QString moved(const QString& word, int from, int to)
{
    std::set<int> all = notes(word);
    const bool possible = all.erase(from) == 1 && all.insert(to).second;
    return possible ? wordOf(all) : QString();
}

QString united(const QString& a, const QString& b)
{
    std::set<int> all = notes(a);
    all.merge(notes(b));
    return wordOf(all);
}

int transpositions(const QString& word)
{
    std::set<std::set<int>> all;
    for (int tonic = 0; tonic < octave; ++tonic)
        all.insert(notes(word, tonic));
    return static_cast<int>(all.size());
}

int modes(const QString& word)
{
    std::set<QString> all;
    for (int degree = 1; degree <= static_cast<int>(notes(word).size()); ++degree)
        all.insert(mode(word, degree));
    return static_cast<int>(all.size());
}

} // namespace words
