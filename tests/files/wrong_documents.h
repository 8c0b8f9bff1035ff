#pragma once

#include <QJsonObject>

#include <functional>
#include <vector>

/// A way to spoil a document that the program wrote, and what the schema must say of it.
struct WrongDocument
{
    const char* name;
    std::function<void(QJsonObject&)> spoil;
    const char* complaint; ///< a part of the verdict: where, and which rule
};

[[nodiscard]] const std::vector<WrongDocument>& wrongDocuments();
