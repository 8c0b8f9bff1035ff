#pragma once

#include <QWidget>

class QBoxLayout;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QTextEdit;

/// The panel of the dialogs that take the fields of a scale, and the rule of its two short names: a text that
/// breaks it is taken back, and a red message says what is allowed.
class ScaleFields : public QWidget
{
    Q_OBJECT

public:
    enum class Asks { withoutCategory, withCategory };
    ScaleFields(Asks asks, QWidget* parent);

    /// The longest beginning that may be a short name.
    [[nodiscard]] static QString findRightAbbrText(const QString& text);

    // From code; no message comes
    /// Cut to what fits.
    void setAbbr1(const QString& text);
    void setAbbr2(const QString& text);
    /// As they are, so that a record that is edited keeps what the user does not touch.
    void keepAbbr1(const QString& text);
    void keepAbbr2(const QString& text);
    void setCurrentCategory(const QString& name);
    void setCategoryList(const QStringList& names);

    /// In the order of Tab.
    [[nodiscard]] QList<QWidget*> fields() const;
    /// By its scale_field; the title for another number.
    [[nodiscard]] QWidget* field(int number) const;
    /// The title says something and both short names are there.
    [[nodiscard]] bool isNamed() const;
    [[nodiscard]] bool hasError() const { return first.error || second.error; }

    QLineEdit* const title;
    QLineEdit* const abbr1;
    QLineEdit* const abbr2;
    QComboBox* const category; ///< null if it is not asked for
    QTextEdit* const description;

signals:
    void saved();
    void cancelled();

private slots:
    void abbr1TextChange(const QString& text);
    void abbr2TextChange(const QString& text);

private:
    struct ShortName
    {
        QLineEdit* edit;
        QString lastGood;
        bool error = false;
    };

    void dressFields();
    void fitDescription();
    void initialize();
    [[nodiscard]] QFormLayout* fieldRows();
    [[nodiscard]] QBoxLayout* buttonRow();
    void follow(ShortName& changed, const ShortName& other, const QString& text);
    void takeBack(ShortName& changed, const QString& text);
    static void put(ShortName& changed, const QString& text);

    QLabel* const message;
    ShortName first, second;
};
