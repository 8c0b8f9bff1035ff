#pragma once

#include "library/scale_data.h"

#include <QJsonObject>
#include <QString>

/// The sample database, read without the program.
namespace first_steps {

extern const QString path;
[[nodiscard]] const QJsonObject& root();
/// The scale of that title; empty if there is none.
[[nodiscard]] scale_data scaleOf(const char* title);

} // namespace first_steps
