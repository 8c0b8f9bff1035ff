#pragma once

#include "screen/AbstractDialog.h"

class ScaleFields;

/// Asks for the fields of a scale that is added. `field`, a scale_field, has the focus at
/// first; the title for another number.
class AddWindow : public AbstractDialog
{
    Q_OBJECT

public:
    AddWindow(int field, QWidget* parent);

    [[nodiscard]] QString name() const;
    [[nodiscard]] QString abbr1() const;
    [[nodiscard]] QString abbr2() const;
    [[nodiscard]] QString category() const;
    [[nodiscard]] QString description() const;

    void setName(const QString& text);
    void setAbbr1(const QString& text); ///< cut to what fits
    void setAbbr2(const QString& text); ///< cut to what fits
    void setDescription(const QString& text);
    void setCurrentCategory(const QString& category);    ///< an unknown one changes nothing
    void setCategoryList(const QStringList& categories); ///< the choice stays if it can

    /// The longest beginning that may be a short name.
    [[nodiscard]] static QString findRightAbbrText(const QString& text);

public slots:
    /// Accepts only if every field but the description is filled in and no short name shows an error.
    void accept() override;

private:
    ScaleFields* const form;
};
