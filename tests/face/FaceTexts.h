#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <QVector>

#include <functional>

class AbstractDialog;
class MainWnd;
class QListWidget;
class QWidget;

/// A text that the window shows.
struct FaceText
{
    QString name;
    QRectF box;                  ///< in the window: where it may stand
    std::function<void()> erase; ///< takes the ink away and leaves the ground
};

namespace face_texts {

/// The texts of a shown window, with those of the dialog over it if there is one. Carets and selections,
/// which are no part of a text, are taken off.
[[nodiscard]] QVector<FaceText> all(MainWnd& window, AbstractDialog* dialog);

/// The rows of a list that show wholly.
[[nodiscard]] QVector<FaceText> rowsOf(QListWidget& list, const QWidget& window);

/// The window as a screen of that many device pixels a logical one shows it: strokes of small texts have
/// whole pixels of their ink from 3 on.
[[nodiscard]] QImage render(QWidget& widget, int ratio);

/// The window with its texts, and without them: these are erased for good.
struct Grounds
{
    QImage with, without;
};
[[nodiscard]] Grounds withAndWithout(const QVector<FaceText>& texts, QWidget& widget, int ratio);

/// A rectangle of the window in such a picture.
[[nodiscard]] QRect scaled(const QRectF& box, int ratio);

} // namespace face_texts
