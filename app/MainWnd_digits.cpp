// Small numbers as pictures.

#include "app/MainWnd.h"

#include "keys/pictures.h"

#include <QPainter>

namespace {

constexpr int digitHeight = 8;
constexpr int pairWidth = 13, negativeWidth = 16;
constexpr int minusSign = -1;

// The glyphs of every digit sheet, by columns, both inclusive.
struct Glyph
{
    int key, first, last;
};

constexpr Glyph glyphs[] = {
    {minusSign, 0, 2}, {1, 4, 6},   {2, 8, 11},  {3, 13, 17}, {4, 19, 23}, {5, 25, 28},
    {6, 30, 35},       {7, 37, 41}, {8, 43, 48}, {9, 50, 55}, {0, 57, 62},
};

MainWnd::Digits cutSheet(int sheet)
{
    const QPixmap picture = pictures::load(QStringLiteral(":/Resources/Numb%1.png").arg(sheet));
    MainWnd::Digits digits;
    for (const Glyph& glyph : glyphs)
        digits.insert(glyph.key, pictures::crop(picture, QRect(glyph.first, 0, glyph.last - glyph.first + 1,
                                                               digitHeight)));
    return digits;
}

/// Up to three glyphs without a space between them, on a picture of that width.
QPixmap joined(const QPixmap& first, const QPixmap& second, const QPixmap& third, int width)
{
    QPixmap result = pictures::transparent({width, digitHeight});
    QPainter painter(&result);
    int x = 0;
    for (const QPixmap& glyph : {first, second, third}) {
        painter.drawPixmap(x, 0, glyph);
        x += pictures::sizeOf(glyph).width();
    }
    return result;
}

} // namespace

void MainWnd::createDigits()
{
    digitsAnchorIn = cutSheet(digit_anchor_in);
    digitsAnchorOut = cutSheet(digit_anchor_out);
    digitsBar = cutSheet(digit_bar);
    digitsSquare = cutSheet(digit_square);
    for (int number = 1; number < static_cast<int>(barDigits.size()); ++number)
        barDigits[static_cast<std::size_t>(number)] = getDigitalPix(digit_bar, number);
}

QPixmap MainWnd::getDigitalPix(digit_type type, int number) const
{
    const QMap<int, const Digits*> maps = {{digit_anchor_in, &digitsAnchorIn},
                                           {digit_anchor_out, &digitsAnchorOut},
                                           {digit_square, &digitsSquare},
                                           {digit_bar, &digitsBar}};
    const Digits* known = maps.value(type);
    const Digits digits = known ? *known : Digits();
    if (number >= 0 && number <= 9)
        return digits.value(number);
    const QString text = QString::number(number);
    const bool negative = number < 0;
    const auto glyphAt = [&](int i) {
        return i < text.size() ? digits.value(text.at(i).digitValue()) : QPixmap();
    };
    if (!negative)
        return joined(glyphAt(0), glyphAt(1), QPixmap(), pairWidth);
    return joined(digits.value(minusSign), glyphAt(1), glyphAt(2), negativeWidth);
}

const QPixmap& MainWnd::degreeDigits(int number) const
{
    const auto i = static_cast<std::size_t>(number);
    return barDigits.at(number > 0 && i < barDigits.size() ? i : 0);
}
