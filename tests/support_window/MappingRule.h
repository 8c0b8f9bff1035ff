#pragma once

#include <bitset>
#include <map>
#include <vector>

/// The white notes of the piano, told by their octave.
inline bool isWhite(int note)
{
    return "x.x.xx.x.x.x"[((note % 12) + 12) % 12] == 'x';
}

/// The rule, told without walking: with the white keys counted from middle C, white key k plays the k-th
/// scale note counted from the tonic above middle C, if the keyboard has that note and the key exists.
struct MappingRule
{
    std::map<int, int> target; // by white key

    MappingRule(int tonic, const std::bitset<12>& degrees)
    {
        std::vector<int> up, down;
        for (int p = 60 + tonic + 1; p <= 108; ++p)
            if (degrees[static_cast<std::size_t>((p - tonic) % 12)])
                up.push_back(p);
        for (int p = 60 + tonic - 1; p >= 21; --p)
            if (degrees[static_cast<std::size_t>((p - tonic) % 12)])
                down.push_back(p);
        std::size_t k = 0;
        for (int key = 61; key <= 108; ++key)
            if (isWhite(key)) {
                target[key] = k < up.size() ? up[k] : -1;
                ++k;
            }
        k = 0;
        for (int key = 59; key >= 21; --key)
            if (isWhite(key)) {
                target[key] = k < down.size() ? down[k] : -1;
                ++k;
            }
        target[60] = 60 + tonic;
    }

    /// Slid by `shift` white keys: a key takes its neighbour's note; past the end of the keyboard the scale
    /// goes on from the last note copied, downward in any case, upward unless that last key is silent.
    std::map<int, int> slid(int shift, int tonic, const std::bitset<12>& degrees) const
    {
        std::vector<int> keys;
        for (const auto& entry : target)
            keys.push_back(entry.first);
        const int n = static_cast<int>(keys.size());
        const auto inScale = [&](int p) { return degrees[static_cast<std::size_t>((p - tonic + 120) % 12)]; };
        std::map<int, int> result;
        const int step = shift > 0 ? 1 : -1;
        int last = shift > 0 ? target.at(keys.back()) : target.at(keys.front());
        const bool ended = last == -1;
        for (int i = shift > 0 ? 0 : n - 1; i >= 0 && i < n; i += step) {
            const int source = i + shift;
            if (source >= 0 && source < n) {
                result[keys[i]] = target.at(keys[source]);
                continue;
            }
            int next = ended ? -1 : last + step;
            while (next >= 21 && next <= 108 && !inScale(next))
                next += step;
            const bool found = !ended && next >= 21 && next <= 108;
            result[keys[i]] = found ? next : -1;
            if (found)
                last = next;
        }
        return result;
    }
};
