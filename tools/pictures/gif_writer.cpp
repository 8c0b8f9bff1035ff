#include "tools/pictures/gif_writer.h"

#include <QHash>
#include <QVector>

namespace {

constexpr int maxColors = 128; // index 0 is the transparent one
constexpr int codeBits = 8, clearCode = 128, endCode = 129;
constexpr int codesBetweenClears = 120; // keeps every code at eight bits, so no dictionary is needed
constexpr int longestBlock = 255;       // bytes
constexpr int leastAlpha = 128;         // the format has no half transparency

void appendByte(QByteArray& data, int value)
{
    data.append(static_cast<char>(value));
}

void appendWord(QByteArray& data, int value)
{
    appendByte(data, value & 0xFF);
    appendByte(data, value >> 8);
}

/// The colours of a picture, numbered as they are met.
class ColorTable
{
public:
    [[nodiscard]] int codeOf(QRgb pixel)
    {
        if (qAlpha(pixel) < leastAlpha)
            return 0;
        if (!index.contains(pixel)) {
            index.insert(pixel, colors.size());
            colors.append(pixel);
        }
        return index.value(pixel);
    }
    [[nodiscard]] bool isTooLarge() const { return colors.size() > maxColors; }
    [[nodiscard]] QByteArray bytes() const
    {
        QByteArray data;
        for (int i = 0; i < maxColors; ++i) {
            const QRgb color = colors.value(i);
            appendByte(data, qRed(color));
            appendByte(data, qGreen(color));
            appendByte(data, qBlue(color));
        }
        return data;
    }

private:
    QHash<QRgb, int> index;
    QVector<QRgb> colors{0};
};

QByteArray codesOf(const QImage& image, ColorTable& table)
{
    static_assert(codeBits == 8, "codes are written as bytes");
    QByteArray codes;
    int sinceClear = codesBetweenClears;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            if (sinceClear++ == codesBetweenClears) {
                appendByte(codes, clearCode);
                sinceClear = 1;
            }
            appendByte(codes, table.codeOf(image.pixel(x, y)));
        }
    appendByte(codes, endCode);
    return codes;
}

QByteArray blocks(const QByteArray& codes)
{
    QByteArray data;
    for (int at = 0; at < codes.size(); at += longestBlock) {
        const QByteArray block = codes.mid(at, longestBlock);
        appendByte(data, block.size());
        data.append(block);
    }
    appendByte(data, 0);
    return data;
}

} // namespace

QByteArray gifData(const QImage& image)
{
    ColorTable table;
    const QByteArray codes = codesOf(image, table);
    if (table.isTooLarge())
        return {};

    QByteArray data("GIF89a");
    appendWord(data, image.width());
    appendWord(data, image.height());
    data.append("\xF6\x00\x00", 3); // a table of 128 colours
    data.append(table.bytes());
    data.append("\x21\xF9\x04\x01\x00\x00\x00\x00", 8); // colour 0 is transparent
    data.append(',');
    for (const int value : {0, 0, image.width(), image.height()})
        appendWord(data, value);
    appendByte(data, 0);
    appendByte(data, codeBits - 1);
    data.append(blocks(codes));
    data.append(';');
    return data;
}
