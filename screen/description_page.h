#pragma once

#include "library/scale_data.h"

#include <QString>

/// The HTML page of a scale: title, short names, description, each as plain text; an empty description reads
/// "(no description)". `sample` is a page with %1 to %4 in their places.
[[nodiscard]] QString descriptionPage(const QString& sample, const scale_data& scale);
