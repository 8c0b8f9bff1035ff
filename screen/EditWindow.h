#pragma once

#include "screen/AbstractDialog.h"

class ScaleFields;

/// Asks for the fields of a scale that the library holds. `field`, a scale_field, has the focus at
/// first; the title for another number.
class EditWindow : public AbstractDialog
{
    Q_OBJECT

public:
    EditWindow(int field, QWidget* parent);

    [[nodiscard]] QString name() const;
    [[nodiscard]] QString abbr1() const;
    [[nodiscard]] QString abbr2() const;
    [[nodiscard]] QString description() const;

    void setName(const QString& text);
    // As they are: a name of the factory may be wider than the user's may, and stays if it is not touched.
    void setAbbr1(const QString& text);
    void setAbbr2(const QString& text);
    void setDescription(const QString& text);

public slots:
    /// Accepts only if every field but the description is filled in.
    void accept() override;

private:
    ScaleFields* const form;
};
