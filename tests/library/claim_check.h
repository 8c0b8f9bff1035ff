#pragma once

#include "library/default_tables.h"
#include "scale_claims.h"

namespace scale_claims {

/// The factory row of that title, or null.
[[nodiscard]] const scale_data* rowOf(const char* title);

/// Whether the factory words bear a claim out. False if it names a scale that is not there.
[[nodiscard]] bool holds(const Claim& claim);

} // namespace scale_claims
