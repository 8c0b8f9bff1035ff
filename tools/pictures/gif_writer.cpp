#include "tools/pictures/gif_writer.h"

#include <QHash>
#include <QVector>

namespace {

constexpr int maxColors = 128; // index 0 is the transparent one
constexpr int codeBits = 8, clearCode = 128, endCode = 129;
constexpr int codesBetweenClears = 120; // keeps every code at eight bits, so no dictionary is needed

void appendWord(QByteArray& data, int value)
{
    data.append(static_cast<char>(value & 0xFF));
    data.append(static_cast<char>(value >> 8));
}

QByteArray blocks(const QByteArray& codes)
{
    QByteArray data;
    for (int at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        data.append(static_cast<char>(block.size()));
        data.append(block);
    }
    data.append('\0');
    return data;
}

} // namespace

QByteArray gifData(const QImage& image)
{
    static_assert(codeBits == 8, "codes are written as bytes");
    QHash<QRgb, int> index;
    QVector<QRgb> colors{0};
    QByteArray codes;
    int sinceClear = codesBetweenClears;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            int code = 0;
            if (qAlpha(pixel) >= 128) {
                if (!index.contains(pixel)) {
                    index.insert(pixel, colors.size());
                    colors.append(pixel);
                }
                code = index.value(pixel);
            }
            if (sinceClear++ == codesBetweenClears) {
                codes.append(static_cast<char>(clearCode));
                sinceClear = 1;
            }
            codes.append(static_cast<char>(code));
        }
    codes.append(static_cast<char>(endCode));
    if (colors.size() > maxColors)
        return {};

    QByteArray data("GIF89a");
    appendWord(data, image.width());
    appendWord(data, image.height());
    data.append("\xF6\x00\x00", 3); // a table of 128 colours
    colors.resize(maxColors);
    for (const QRgb color : qAsConst(colors)) {
        data.append(static_cast<char>(qRed(color)));
        data.append(static_cast<char>(qGreen(color)));
        data.append(static_cast<char>(qBlue(color)));
    }
    data.append("\x21\xF9\x04\x01\x00\x00\x00\x00", 8); // colour 0 is transparent
    data.append(',');
    for (const int value : {0, 0, image.width(), image.height()})
        appendWord(data, value);
    data.append('\0');
    data.append(static_cast<char>(codeBits - 1));
    data.append(blocks(codes));
    data.append(';');
    return data;
}
