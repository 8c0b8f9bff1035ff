#include "wrong_documents.h"

#include <QJsonArray>

namespace {

using Spoil = std::function<void(QJsonObject&)>;

constexpr const char* scales = "SorvaneDefaultScalesArray";
constexpr const char* headers = "SorvaneDefaultHeadersArray";

Spoil set(const char* key, const QJsonValue& value)
{
    return [=](QJsonObject& root) { root.insert(QLatin1String(key), value); };
}

Spoil drop(const char* key)
{
    return [=](QJsonObject& root) { root.remove(QLatin1String(key)); };
}

/// Changes an object of an array of the root.
Spoil inside(const char* array, int index, const Spoil& change)
{
    return [=](QJsonObject& root) {
        QJsonArray all = root.value(QLatin1String(array)).toArray();
        QJsonObject object = all.at(index).toObject();
        change(object);
        all.replace(index, object);
        root.insert(QLatin1String(array), all);
    };
}

Spoil scale(const Spoil& change)
{
    return inside(scales, 0, change);
}

Spoil header(const Spoil& change)
{
    return inside(headers, 15, change);
}

Spoil both(const Spoil& first, const Spoil& second)
{
    return [=](QJsonObject& root) {
        first(root);
        second(root);
    };
}

void dropLastHeader(QJsonObject& root)
{
    QJsonArray all = root.value(QLatin1String(headers)).toArray();
    all.removeLast();
    root.insert(QLatin1String(headers), all);
}

void addHeader(QJsonObject& root)
{
    QJsonArray all = root.value(QLatin1String(headers)).toArray();
    all.append(all.first());
    root.insert(QLatin1String(headers), all);
}

/// The first scale of a fresh file that is none: it marks the empty category.
Spoil marker(const Spoil& change)
{
    return inside(scales, 7, change);
}

std::vector<WrongDocument> rootRows()
{
    return {
        {"no scales", drop(scales), "root: required"},
        {"no headers", drop(headers), "root: required"},
        {"no power button", drop("SorvanePowerButtonPosition"), "root: required"},
        {"no anchors", drop("SorvaneAnchorPosition"), "root: required"},
        {"no power", drop("PowerOnState"), "root: required"},
        {"no active header", drop("ActiveHeader"), "root: required"},
        {"no tonic switch", drop("TonicOnState"), "root: required"},
        {"no scale switch", drop("ScaleOnState"), "root: required"},
        {"no tonic", drop("TonicModifier"), "root: required"},
        {"no scale word", drop("ScaleModifier"), "root: required"},
        {"no place of the anchors", drop("AnchorPosX"), "root: required"},
        {"no display", drop("CurrentScene"), "root: required"},
        {"no library view", drop("LibViewOpened"), "root: required"},
        {"scales as an object", set(scales, QJsonObject()), "SorvaneDefaultScalesArray: type"},
        {"headers as a text", set(headers, "none"), "SorvaneDefaultHeadersArray: type"},
        {"button as a text", set("SorvanePowerButtonPosition", "288"), "SorvanePowerButtonPosition: type"},
        {"button off the stage", set("SorvanePowerButtonPosition", 2e6),
         "SorvanePowerButtonPosition: maximum"},
        {"anchors nowhere", set("SorvaneAnchorPosition", QJsonValue()), "SorvaneAnchorPosition: type"},
        {"anchors off the stage", set("AnchorPosX", -2e6), "AnchorPosX: minimum"},
        {"power as a number", set("PowerOnState", 1), "PowerOnState: type"},
        {"tonic switch as a text", set("TonicOnState", "true"), "TonicOnState: type"},
        {"scale switch as a number", set("ScaleOnState", 0), "ScaleOnState: type"},
        {"library view as a text", set("LibViewOpened", ""), "LibViewOpened: type"},
        {"a white key active", set("ActiveHeader", 60), "ActiveHeader: enum"},
        {"active key as a text", set("ActiveHeader", "63"), "ActiveHeader: enum"},
        {"display 0", set("CurrentScene", 0), "CurrentScene: minimum"},
        {"display 5", set("CurrentScene", 5), "CurrentScene: maximum"},
        {"half a display", set("CurrentScene", 1.5), "CurrentScene: type"},
        {"a flat tonic", set("TonicModifier", "Db"), "TonicModifier: enum"},
        {"a small tonic", set("TonicModifier", "c"), "TonicModifier: enum"},
        {"a tonic on without a name", set("TonicModifier", ""), "TonicModifier: enum"},
        {"a key behind a switch that is on", set("TonicKeyBehindSwitch", "D"),
         "TonicKeyBehindSwitch: unwanted"},
        {"a tonic off with a name", both(set("TonicOnState", false), set("TonicKeyBehindSwitch", "D")),
         "TonicModifier: const"},
        {"a tonic off with no key behind it", both(set("TonicOnState", false), set("TonicModifier", "")),
         "root: required"},
        {"a key behind the switch that is none",
         both(both(set("TonicOnState", false), set("TonicModifier", "")), set("TonicKeyBehindSwitch", "H")),
         "TonicKeyBehindSwitch: enum"},
        {"eleven letters", set("ScaleModifier", "xoxoxxoxoxo"), "ScaleModifier: pattern"},
        {"thirteen letters", set("ScaleModifier", "xoxoxxoxoxoxo"), "ScaleModifier: pattern"},
        {"a word and a line break", set("ScaleModifier", "xoxoxxoxoxox\n"), "ScaleModifier: maxLength"},
        {"a word of digits", set("ScaleModifier", 101011010101.0), "ScaleModifier: type"},
        {"a silent tonic", set("ScaleModifier", "ooxoxxoxoxox"), "ScaleModifier: pattern"},
        {"a foreign letter", set("ScaleModifier", "xoxoxxoXoxox"), "ScaleModifier: pattern"},
        {"an input port as a number", set("MidiInPort-a keyboard", 1), "MidiInPort-a keyboard: type"},
        {"an output port as a text", set("MidiOutPort-", "yes"), "MidiOutPort-: type"},
        {"the path as a bool", set("DatabasePath", true), "DatabasePath: type"},
        {"the point as a text", set("PowerPointX", "0"), "PowerPointX: type"},
    };
}

std::vector<WrongDocument> scaleRows()
{
    return {
        {"a scale without a category", scale(drop("Category")), "SorvaneDefaultScalesArray/0: required"},
        {"a scale without a title", scale(drop("Title")), "SorvaneDefaultScalesArray/0: required"},
        {"a scale without an upper name", scale(drop("Abbr1")), "SorvaneDefaultScalesArray/0: required"},
        {"a scale without a lower name", scale(drop("Abbr2")), "SorvaneDefaultScalesArray/0: required"},
        {"a scale without a word", scale(drop("Scale")), "SorvaneDefaultScalesArray/0: required"},
        {"a scale without a description", scale(drop("LibBody")), "SorvaneDefaultScalesArray/0: required"},
        {"a scale's key in excess", scale(set("Key", "C")),
         "SorvaneDefaultScalesArray/0: additionalProperties"},
        {"a category as a number", scale(set("Category", 1)), "SorvaneDefaultScalesArray/0/Category: type"},
        {"a title as null", scale(set("Title", QJsonValue())), "SorvaneDefaultScalesArray/0/Title: type"},
        {"an upper name as a number", scale(set("Abbr1", 1)), "SorvaneDefaultScalesArray/0/Abbr1: type"},
        {"a lower name as a list", scale(set("Abbr2", QJsonArray())),
         "SorvaneDefaultScalesArray/0/Abbr2: type"},
        {"a description as a bool", scale(set("LibBody", false)),
         "SorvaneDefaultScalesArray/0/LibBody: type"},
        {"a word as a number", scale(set("Scale", 101011010101.0)),
         "SorvaneDefaultScalesArray/0/Scale: type"},
        {"a word that is none", scale(set("Scale", "major")), "SorvaneDefaultScalesArray/0/Scale: pattern"},
        {"a marker with a title", scale(set("Scale", "")), "SorvaneDefaultScalesArray/0/Title: const"},
        {"a scale with an empty title", scale(set("Title", "")),
         "SorvaneDefaultScalesArray/0/Title: minLength"},
        {"a marker with a title and no word", marker(set("Title", "Mine")),
         "SorvaneDefaultScalesArray/7/Title: const"},
        {"a marker with an upper name", marker(set("Abbr1", "Mine")),
         "SorvaneDefaultScalesArray/7/Abbr1: const"},
        {"a marker with a lower name", marker(set("Abbr2", "1")), "SorvaneDefaultScalesArray/7/Abbr2: const"},
        {"a marker with a text", marker(set("LibBody", "...")), "SorvaneDefaultScalesArray/7/LibBody: const"},
        {"a scale that is no object",
         [](QJsonObject& root) { root.insert(QLatin1String(scales), QJsonArray{QStringLiteral("major")}); },
         "SorvaneDefaultScalesArray/0: type"},
    };
}

std::vector<WrongDocument> headerRows()
{
    return {
        {"35 headers", dropLastHeader, "SorvaneDefaultHeadersArray: minItems"},
        {"37 headers", addHeader, "SorvaneDefaultHeadersArray: maxItems"},
        {"a header without an upper name", header(drop("NameScenic1")), "Array/15: required"},
        {"a header without a lower name", header(drop("NameScenic2")), "Array/15: required"},
        {"a header without a tonic name", header(drop("NameTonic")), "Array/15: required"},
        {"a header without a tonic switch", header(drop("TonicOn")), "Array/15: required"},
        {"a header without a tonic", header(drop("TonicData")), "Array/15: required"},
        {"a header without a scale switch", header(drop("ScaleOn")), "Array/15: required"},
        {"a header without a scale", header(drop("ScaleData")), "Array/15: required"},
        {"a header without the anchors' mark", header(drop("AnchorValid")), "Array/15: required"},
        {"a header without the anchors' place", header(drop("AnchorPos")), "Array/15: required"},
        {"a header without x", header(drop("XPos")), "Array/15: required"},
        {"a header without y", header(drop("YPos")), "Array/15: required"},
        {"a header's key in excess", header(set("Pitch", 58)), "Array/15: additionalProperties"},
        {"an upper header name as a number", header(set("NameScenic1", 1)), "Array/15/NameScenic1: type"},
        {"a lower header name as a number", header(set("NameScenic2", 1)), "Array/15/NameScenic2: type"},
        {"a tonic name that is none", header(set("NameTonic", "H")), "Array/15/NameTonic: enum"},
        {"a header's tonic switch as a number", header(set("TonicOn", 1)), "Array/15/TonicOn: type"},
        {"a header's tonic that is none", header(set("TonicData", "E#")), "Array/15/TonicData: enum"},
        {"a header's scale switch as null", header(set("ScaleOn", QJsonValue())), "Array/15/ScaleOn: type"},
        {"a header's scale that is none", header(set("ScaleData", "x")), "Array/15/ScaleData: anyOf"},
        {"the anchors' mark as a number", header(set("AnchorValid", 1)), "Array/15/AnchorValid: type"},
        {"half a pixel", header(set("AnchorPos", 0.5)), "Array/15/AnchorPos: type"},
        {"anchors too far", header(set("AnchorPos", 1000001)), "Array/15/AnchorPos: maximum"},
        {"anchors too far to the left", header(set("AnchorPos", -1000001)), "Array/15/AnchorPos: minimum"},
        {"a header that is no object",
         [](QJsonObject& root) {
             QJsonArray all = root.value(QLatin1String(headers)).toArray();
             all.replace(15, QStringLiteral("C"));
             root.insert(QLatin1String(headers), all);
         },
         "Array/15: type"},
        {"x as a text", header(set("XPos", "16")), "Array/15/XPos: type"},
        {"y as a text", header(set("YPos", "1")), "Array/15/YPos: type"},
    };
}

} // namespace

const std::vector<WrongDocument>& wrongDocuments()
{
    static const std::vector<WrongDocument> all = [] {
        std::vector<WrongDocument> rows = rootRows();
        for (const WrongDocument& row : scaleRows())
            rows.push_back(row);
        for (const WrongDocument& row : headerRows())
            rows.push_back(row);
        return rows;
    }();
    return all;
}
