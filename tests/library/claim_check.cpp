// Rotating, comparing and counting: no fact about a scale stands here.

#include "claim_check.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <numeric>
#include <set>

namespace scale_claims {
namespace {

/// Semitones above the tonic, 0 to 11.
using Notes = std::set<int>;

int wrapped(int semitones)
{
    return ((semitones % 12) + 12) % 12;
}

Notes notesOf(const QString& word)
{
    Notes notes;
    for (int i = 0; i < word.size(); ++i)
        if (word.at(i) == QLatin1Char('x'))
            notes.insert(i);
    return notes;
}

Notes notesOfTitle(const char* title)
{
    const scale_data* row = rowOf(title);
    return row ? notesOf(row->scale) : Notes();
}

/// The same notes with another one counted as the tonic.
Notes seenFrom(const Notes& notes, int tonic)
{
    Notes turned;
    for (const int note : notes)
        turned.insert(wrapped(note - tonic));
    return turned;
}

/// The note of a degree, which counts on past the octave.
int noteOf(const Notes& notes, int degree)
{
    const int count = static_cast<int>(notes.size());
    return *std::next(notes.begin(), (degree - 1) % count) + 12 * ((degree - 1) / count);
}

bool includes(const Notes& all, const std::vector<int>& some)
{
    return std::all_of(some.begin(), some.end(), [&](int note) { return all.count(note) == 1; });
}

std::vector<int> stepsOf(const Notes& notes)
{
    std::vector<int> steps;
    for (int degree = 1; degree <= static_cast<int>(notes.size()); ++degree)
        steps.push_back(noteOf(notes, degree + 1) - noteOf(notes, degree));
    return steps;
}

/// One for each degree, alike or not.
std::vector<Notes> modesOf(const Notes& notes)
{
    std::vector<Notes> modes;
    for (const int tonic : notes)
        modes.push_back(seenFrom(notes, tonic));
    return modes;
}

std::set<Notes> distinctModesOf(const Notes& notes)
{
    const std::vector<Notes> modes = modesOf(notes);
    return {modes.begin(), modes.end()};
}

std::set<Notes> transpositionsOf(const Notes& notes)
{
    std::set<Notes> all;
    for (int tonic = 0; tonic < 12; ++tonic)
        all.insert(seenFrom(notes, tonic));
    return all;
}

Notes without(const Notes& notes, const std::vector<int>& degrees)
{
    Notes rest = notes;
    for (const int degree : degrees)
        rest.erase(noteOf(notes, std::abs(degree)));
    return rest;
}

/// Empty if two degrees fall on one note.
Notes altered(const Notes& notes, const std::vector<int>& degrees)
{
    Notes changed = without(notes, degrees);
    for (const int degree : degrees)
        changed.insert(wrapped(noteOf(notes, std::abs(degree)) + (degree > 0 ? 1 : -1)));
    return changed.size() == notes.size() ? changed : Notes();
}

/// The notes on which the chord can be built.
Notes rootsOf(const Notes& notes, const std::vector<int>& chord)
{
    Notes roots;
    for (const int note : notes)
        if (includes(seenFrom(notes, note), chord))
            roots.insert(note);
    return roots;
}

bool differInOne(const Notes& a, const Notes& b)
{
    std::vector<int> same;
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(same));
    return a.size() == b.size() && same.size() + 1 == a.size();
}

Notes complementOf(const Notes& notes)
{
    Notes rest;
    for (int note = 0; note < 12; ++note)
        if (notes.count(note) == 0)
            rest.insert(note);
    return rest;
}

/// The notes of every other degree.
Notes everyOther(const Notes& notes)
{
    Notes some;
    for (int degree = 1; degree <= static_cast<int>(notes.size()); degree += 2)
        some.insert(noteOf(notes, degree));
    return some;
}

bool alternateTriadsAre(const Notes& notes, const std::vector<int>& chord)
{
    for (int degree = 1; degree <= static_cast<int>(notes.size()); ++degree) {
        const int root = noteOf(notes, degree);
        if (std::vector<int>{0, noteOf(notes, degree + 2) - root, noteOf(notes, degree + 4) - root} != chord)
            return false;
    }
    return true;
}

/// True if `is` holds for the scale and for no other of the modes.
template <typename Predicate>
bool isAloneAmong(const std::set<Notes>& modes, const Notes& scale, Predicate is)
{
    return modes.count(scale) == 1 && is(scale) && std::count_if(modes.begin(), modes.end(), is) == 1;
}

bool isBrightestWith(const Notes& scale, int note)
{
    const auto height = [](const Notes& notes) { return std::accumulate(notes.begin(), notes.end(), 0); };
    const auto atLeastAsBright = [&](const Notes& mode) {
        return mode.count(note) == 1 && height(mode) >= height(scale);
    };
    return isAloneAmong(distinctModesOf(scale), scale, atLeastAsBright);
}

bool areFifthsInARow(const Notes& notes)
{
    for (const int root : notes) {
        Notes row;
        for (std::size_t i = 0; i < notes.size(); ++i)
            row.insert(wrapped(root + 7 * static_cast<int>(i)));
        if (row == notes)
            return true;
    }
    return false;
}

bool meetPartials(const Notes& notes, const std::vector<int>& partials)
{
    Notes met;
    for (const int partial : partials)
        for (const int note : notes) {
            const double distance = std::remainder(12 * std::log2(partial) - note, 12);
            if (std::abs(distance) < 0.6)
                met.insert(note);
        }
    return met == notes && partials.size() == notes.size();
}

/// The parent scales are numbered by their fourth, then by their second and third, then by their sixth and
/// seventh.
Notes melakarta(int number)
{
    constexpr int pairs[6][2] = {{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}};
    const int place = (number - 1) % 36;
    const auto& low = pairs[place / 6];
    const auto& high = pairs[place % 6];
    return {0, 1 + low[0], 1 + low[1], number <= 36 ? 5 : 6, 7, 8 + high[0], 8 + high[1]};
}

/// The modes of a scale are the rows of its block, each once.
bool modesFillBlockOf(const scale_data& own)
{
    for (const auto& block : resetScaleData) {
        std::vector<Notes> rows;
        bool isHere = false;
        for (const scale_data& row : block) {
            isHere = isHere || &row == &own;
            if (!row.scale.isEmpty())
                rows.push_back(notesOf(row.scale));
        }
        const std::vector<Notes> modes = modesOf(notesOf(own.scale));
        if (isHere)
            return std::is_permutation(rows.begin(), rows.end(), modes.begin(), modes.end());
    }
    return false;
}

bool includesEveryScale(const Notes& notes)
{
    for (const auto& block : resetScaleData)
        for (const scale_data& row : block) {
            const Notes part = notesOf(row.scale);
            if (!includes(notes, {part.begin(), part.end()}))
                return false;
        }
    return true;
}

/// A claim that compares with the named scale `other`.
bool holdsAgainst(const Claim& claim, const Notes& own, const char* other)
{
    const Notes base = notesOfTitle(other);
    const int first = claim.numbers.empty() ? 0 : claim.numbers.front();
    const std::set<Notes> modes = distinctModesOf(base);
    const auto letters = [&](const char* title) {
        return rowOf(title)->scale.mid(first, claim.numbers.at(1) - first + 1);
    };
    switch (claim.kind) {
    case Kind::modeOf:
        return own == seenFrom(base, noteOf(base, first));
    case Kind::otherModeOf:
        return own != base && modes.count(own) == 1;
    case Kind::notModeOf:
        return modes.count(own) == 0;
    case Kind::omitting:
        return !claim.numbers.empty() && own == without(base, claim.numbers);
    case Kind::altering:
        return !claim.numbers.empty() && own == altered(base, claim.numbers);
    case Kind::adding:
        return own.size() == base.size() + 1 && own.count(first) == 1 &&
               includes(own, {base.begin(), base.end()});
    case Kind::sameNotesOn:
        return seenFrom(own, first) == base;
    case Kind::partOf:
        return includes(base, {own.begin(), own.end()});
    case Kind::differsInOne:
        return differInOne(own, base);
    case Kind::sharesLetters:
        return letters(claim.title) == letters(other);
    case Kind::onlyModeLacking:
        return isAloneAmong(modes, own, [&](const Notes& mode) { return mode.count(first) == 0; });
    default:
        return false;
    }
}

/// A claim about the scale alone.
bool holdsAlone(const Claim& claim, const scale_data& row)
{
    const Notes own = notesOf(row.scale);
    const std::vector<int>& numbers = claim.numbers;
    const std::vector<int> steps = stepsOf(own);
    const auto number = [&](std::size_t i) { return numbers.at(i); };
    switch (claim.kind) {
    case Kind::holdsAllOthers:
        return includesEveryScale(own);
    case Kind::everyOther:
        return everyOther(own) == Notes(numbers.begin(), numbers.end());
    case Kind::alternateTriads:
        return alternateTriadsAre(own, claim.chord);
    case Kind::palindrome:
        return std::equal(steps.begin(), steps.end(), steps.rbegin());
    case Kind::transpositions:
        return static_cast<int>(transpositionsOf(own).size()) == number(0);
    case Kind::modes:
        return static_cast<int>(distinctModesOf(own).size()) == number(0);
    case Kind::modesFillBlock:
        return modesFillBlockOf(row);
    case Kind::ownComplement:
        return transpositionsOf(own).count(complementOf(own)) == 1;
    case Kind::noteCount:
        return static_cast<int>(own.size()) == number(0);
    case Kind::steps:
        return steps == numbers;
    case Kind::firstSteps:
        return steps.size() >= numbers.size() && std::equal(numbers.begin(), numbers.end(), steps.begin());
    case Kind::stepAt:
        return steps.at(static_cast<std::size_t>(number(0) - 1)) == number(1);
    case Kind::stepCount:
        return std::count(steps.begin(), steps.end(), number(0)) == number(1);
    case Kind::exactly:
        return own == Notes(numbers.begin(), numbers.end());
    case Kind::holds:
        return !numbers.empty() && includes(own, numbers);
    case Kind::lacks:
        return !numbers.empty() &&
               std::none_of(numbers.begin(), numbers.end(), [&](int note) { return own.count(note) == 1; });
    case Kind::chordRoots:
        return rootsOf(own, claim.chord) == Notes(numbers.begin(), numbers.end());
    case Kind::onlyModeWith:
        return isAloneAmong(distinctModesOf(own), own,
                            [&](const Notes& mode) { return noteOf(mode, number(0)) == number(1); });
    case Kind::brightestWith:
        return isBrightestWith(own, number(0));
    case Kind::fifthsInARow:
        return areFifthsInARow(own);
    case Kind::partials:
        return meetPartials(own, numbers);
    case Kind::melakarta:
        return own == melakarta(number(0));
    default:
        return false;
    }
}

Notes unionOf(const std::vector<const char*>& titles)
{
    Notes all;
    for (const char* title : titles) {
        const Notes notes = notesOfTitle(title);
        all.insert(notes.begin(), notes.end());
    }
    return all;
}

} // namespace

const scale_data* rowOf(const char* title)
{
    for (const auto& block : resetScaleData)
        for (const scale_data& row : block)
            if (row.title == QLatin1String(title) && !row.scale.isEmpty())
                return &row;
    return nullptr;
}

bool holds(const Claim& claim)
{
    const scale_data* row = rowOf(claim.title);
    if (!row || !std::all_of(claim.of.begin(), claim.of.end(), rowOf))
        return false;
    if (claim.kind == Kind::uniting)
        return notesOf(row->scale) == unionOf(claim.of);
    if (claim.of.empty())
        return holdsAlone(claim, *row);
    return std::all_of(claim.of.begin(), claim.of.end(),
                       [&](const char* other) { return holdsAgainst(claim, notesOf(row->scale), other); });
}

} // namespace scale_claims
