#pragma once

#include <QByteArray>

#include <random>

/// Changes database files as JSON, so that what comes out is JSON again.
namespace json_mutator {

using Random = std::minstd_rand;

/// The file with a few values, keys or elements changed. What is no JSON object counts as an empty one.
[[nodiscard]] QByteArray mutate(const QByteArray& file, Random& random);
/// Some of one file and some of the other.
[[nodiscard]] QByteArray cross(const QByteArray& one, const QByteArray& other, Random& random);

} // namespace json_mutator
