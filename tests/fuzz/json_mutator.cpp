#include "json_mutator.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

namespace json_mutator {
namespace {

const QStringList rootKeys = {
    "SorvaneDefaultScalesArray",
    "SorvaneDefaultHeadersArray",
    "SorvanePowerButtonPosition",
    "SorvaneAnchorPosition",
    "DatabasePath",
    "PowerOnState",
    "PowerPointX",
    "TonicOnState",
    "ScaleOnState",
    "TonicModifier",
    "TonicKeyBehindSwitch",
    "ScaleModifier",
    "ActiveHeader",
    "CurrentScene",
    "LibViewOpened",
    "AnchorPosX",
    "MidiInPort-",
    "MidiOutPort-",
};

const QStringList recordKeys = {
    "Category",    "Abbr1",       "Abbr2",     "Scale",   "Title",     "LibBody",
    "NameScenic1", "NameScenic2", "NameTonic", "TonicOn", "TonicData", "ScaleOn",
    "ScaleData",   "AnchorValid", "AnchorPos", "XPos",    "YPos",
};

const QStringList texts = {
    "",
    "C",
    "F#",
    "B",
    "H",
    "xoxoxxoxoxox",
    "xooooooooooo",
    "xxxxxxxxxxxx",
    "xoxxoxoxxoxo",
    "xoxoxxoxoxo",
    "xoxoxxoxoxoxx",
    "oooooooooooo",
    "xoxoxxoyoxox",
    "User",
    "1",
    "108",
    "109",
    "User 1",
    "Major",
    "Diatonic 1",
    "%1",
    "<b>&amp;</b>",
    "<table width=\"999999\">",
    "true",
    "-1",
    "9",
    "10",
};

const QStringList tonics = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};

const double numbers[] = {0,
                          -0.0,
                          1,
                          2,
                          3,
                          4,
                          5,
                          -1,
                          21,
                          22,
                          23,
                          61,
                          106,
                          108,
                          109,
                          127,
                          128,
                          407,
                          1000,
                          1e6,
                          -1e6,
                          1e9,
                          0.5,
                          1e-9,
                          1e18,
                          1e19,
                          -1e19,
                          1e300,
                          -1e300,
                          2147483647.0,
                          -2147483648.0,
                          4294967296.0};

int below(Random& random, int count)
{
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

bool oneIn(Random& random, int count)
{
    return below(random, count) == 0;
}

template <typename List>
auto anyOf(const List& list, Random& random)
{
    return *(std::begin(list) + below(random, static_cast<int>(std::size(list))));
}

QString word(Random& random)
{
    QString letters;
    for (int i = 0; i < 12; ++i)
        letters += QLatin1Char(oneIn(random, 2) ? 'x' : 'o');
    return letters;
}

QString text(Random& random)
{
    switch (below(random, 8)) {
    case 0:
        return word(random);
    case 1:
        return QString(below(random, 400), QLatin1Char('W'));
    case 2: // half a character, no character, the end of a C string, a direction
        return QString(QChar(anyOf(QVector<ushort>{0xD800, 0xFFFF, 0, 0x202E, '\n'}, random)));
    default:
        return anyOf(texts, random);
    }
}

QJsonValue anyValue(Random& random)
{
    switch (below(random, 8)) {
    case 0:
        return QJsonValue::Null;
    case 1:
    case 2:
        return oneIn(random, 2);
    case 3:
        return QJsonArray{QJsonObject(), text(random)};
    case 4:
        return QJsonObject{{anyOf(recordKeys, random), text(random)}};
    case 5:
        return anyOf(numbers, random);
    default:
        return text(random);
    }
}

bool isSwitch(const QString& key)
{
    return key.endsWith(QLatin1String("State")) || key.endsWith(QLatin1String("On")) ||
           key.startsWith(QLatin1String("Midi")) || key == QLatin1String("LibViewOpened") ||
           key == QLatin1String("AnchorValid");
}

QJsonValue valueFor(const QString& key, Random& random);

QJsonArray records(Random& random)
{
    QJsonArray array;
    for (int i = below(random, 4); i >= 0; --i) {
        QJsonObject record;
        for (const QString& key : recordKeys)
            record.insert(key, valueFor(key, random));
        array.append(record);
    }
    return array;
}

/// What the key asks for, more often than not: only together with such values are odd ones of others read.
QJsonValue valueFor(const QString& key, Random& random)
{
    if (oneIn(random, 4))
        return anyValue(random);
    if (key.endsWith(QLatin1String("Array")))
        return records(random);
    if (isSwitch(key))
        return oneIn(random, 2);
    if (key == QLatin1String("CurrentScene"))
        return below(random, 6);
    if (key == QLatin1String("ActiveHeader"))
        return 20 + below(random, 90);
    if (key.contains(QLatin1String("Pos")))
        return below(random, 2000) - 1000;
    if (key.contains(QLatin1String("Tonic")))
        return anyOf(tonics, random);
    return key.contains(QLatin1String("Scale")) ? word(random) : text(random);
}

QString editedText(QString value, Random& random)
{
    if (value.isEmpty() || oneIn(random, 3))
        return text(random);
    const int place = below(random, value.size());
    switch (below(random, 4)) {
    case 0:
        return value.left(place);
    case 1:
        return value + value;
    case 2:
        return value.insert(place, text(random));
    default:
        value[place] = QLatin1Char(value.at(place) == QLatin1Char('x') ? 'o' : 'x');
        return value;
    }
}

QJsonValue edited(const QJsonValue& value, Random& random);

QJsonObject editedObject(QJsonObject object, const QStringList& known, Random& random)
{
    const int choice = below(random, 8);
    if (object.isEmpty() || choice <= 1) {
        const QString key = oneIn(random, 16) ? text(random) : anyOf(known, random);
        object.insert(key, valueFor(key, random));
        return object;
    }
    const QString key = anyOf(object.keys(), random);
    if (choice == 2)
        object.remove(key);
    else if (choice == 3)
        object.insert(anyOf(known, random), object.value(key));
    else if (choice < 6)
        object.insert(key, valueFor(key, random));
    else
        object.insert(key, edited(object.value(key), random));
    return object;
}

QJsonArray editedArray(QJsonArray array, Random& random)
{
    if (array.isEmpty())
        return {anyValue(random)};
    const int place = below(random, array.size()), other = below(random, array.size());
    switch (below(random, 8)) {
    case 0:
        array.removeAt(place);
        break;
    case 1:
        array.insert(other, array.at(place));
        break;
    case 2:
        array.replace(other, array.at(place));
        break;
    case 3:
        for (int i = array.size() - 1; i >= place; --i)
            array.removeAt(i);
        break;
    default:
        array.replace(place, edited(array.at(place), random));
    }
    return array;
}

QJsonValue edited(const QJsonValue& value, Random& random)
{
    if (oneIn(random, 16))
        return anyValue(random);
    switch (value.type()) {
    case QJsonValue::Object:
        return editedObject(value.toObject(), recordKeys, random);
    case QJsonValue::Array:
        return editedArray(value.toArray(), random);
    case QJsonValue::String:
        return editedText(value.toString(), random);
    case QJsonValue::Double:
        return oneIn(random, 2) ? anyOf(numbers, random) : value.toDouble() + below(random, 101) - 50;
    case QJsonValue::Bool:
        return !value.toBool();
    default:
        return anyValue(random);
    }
}

QJsonObject parsed(const QByteArray& file)
{
    return QJsonDocument::fromJson(file).object();
}

QByteArray written(const QJsonObject& root)
{
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

} // namespace

QByteArray mutate(const QByteArray& file, Random& random)
{
    QJsonObject root = parsed(file);
    for (int i = below(random, 8); i >= 0; --i)
        root = editedObject(root, rootKeys, random);
    return written(root);
}

QByteArray cross(const QByteArray& one, const QByteArray& other, Random& random)
{
    QJsonObject root = parsed(one);
    const QJsonObject second = parsed(other);
    for (auto member = second.begin(); member != second.end(); ++member) {
        if (oneIn(random, 2))
            continue;
        const QJsonArray first = root.value(member.key()).toArray();
        QJsonArray both = first;
        for (const QJsonValue& value : member.value().toArray())
            both.append(value);
        root.insert(member.key(), !first.isEmpty() && oneIn(random, 2) ? QJsonValue(both) : member.value());
    }
    return written(root);
}

} // namespace json_mutator
