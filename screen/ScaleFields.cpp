#include "screen/ScaleFields.h"

#include "app/MainWnd.h"
#include "screen/CenterScreen.h"
#include "screen/dialog_panel.h"
#include "screen/scale_field.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>

#include <algorithm>

namespace {

constexpr int messageHeight = 24, abbrWidth = 70;
constexpr int messageWidth = 354; // breaks its lines before the list of signs
constexpr int textMargin = 2;     // as line edits have it
constexpr int frame = 2;          // border and padding of a field, above and below
constexpr int rowSpacing = 6, columnSpacing = 8;

const QString goodStyle = QStringLiteral("QLineEdit { border-width: 0px; color: black; }");
const QString badStyle = QStringLiteral("QLineEdit { border-width: 2px; border-color: red; color: red; "
                                        "selection-background-color: rgb(255, 187, 184); }");
const QString noMessage = QStringLiteral(" ");

/// Whether a text is another one with a piece taken out.
bool isRestOf(const QString& text, const QString& whole)
{
    if (text.size() >= whole.size())
        return false;
    const auto cut = std::mismatch(text.begin(), text.end(), whole.begin()).first;
    return whole.endsWith(text.mid(static_cast<int>(cut - text.begin())));
}

bool mayBeShortName(const QString& text)
{
    return mainWnd->centerScreen->canBeRightLibraryName(text);
}

} // namespace

ScaleFields::ScaleFields(Asks asks, QWidget* parent)
    : QWidget(parent), title(new QLineEdit(this)), abbr1(new QLineEdit(QStringLiteral("User"), this)),
      abbr2(new QLineEdit(QStringLiteral("1"), this)),
      category(asks == Asks::withCategory ? new QComboBox(this) : nullptr), description(new QTextEdit(this)),
      message(new QLabel(noMessage, this)), first{abbr1, abbr1->text()}, second{abbr2, abbr2->text()}
{
    dressFields();
    initialize();
    connect(abbr1, &QLineEdit::textEdited, this, &ScaleFields::abbr1TextChange);
    connect(abbr2, &QLineEdit::textEdited, this, &ScaleFields::abbr2TextChange);
}

void ScaleFields::dressFields()
{
    title->setObjectName(QStringLiteral("title"));
    abbr1->setObjectName(QStringLiteral("abbr1"));
    abbr1->setAccessibleName(tr("First short name"));
    abbr2->setObjectName(QStringLiteral("abbr2"));
    abbr2->setAccessibleName(tr("Second short name"));
    for (QLineEdit* edit : {abbr1, abbr2}) {
        edit->setAlignment(Qt::AlignCenter);
        edit->setFixedWidth(abbrWidth);
    }
    for (QLineEdit* edit : {title, abbr1, abbr2})
        edit->setFixedHeight(dialog_panel::fieldHeight);
    if (category) {
        category->setObjectName(QStringLiteral("category"));
        category->setFixedHeight(dialog_panel::fieldHeight);
        category->setStyleSheet(QStringLiteral("QComboBox { padding-left: 5px; }")); // as line edits have it
    }
    description->setObjectName(QStringLiteral("description"));
    description->setAcceptRichText(false);
    description->document()->setDocumentMargin(textMargin);
    description->setPlaceholderText(tr("(no description)"));
    description->setTabChangesFocus(true);
    description->setToolTip(tr("Shift+Return begins a new line."));
    fitDescription();
    message->setObjectName(QStringLiteral("message"));
    message->setStyleSheet(QStringLiteral("QLabel { color:red; font-size: 9px; padding: 0px; }"));
    message->setAlignment(Qt::AlignCenter);
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setFixedSize(messageWidth, messageHeight);
}

// Whole lines only, and by whole lines it scrolls: none is cut at the field's edge.
void ScaleFields::fitDescription()
{
    const int lines = category ? 9 : 8;
    description->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    description->ensurePolished(); // the style gives it its font
    const int line = QFontMetrics(description->font()).lineSpacing();
    description->setFixedHeight(lines * line + 2 * (textMargin + frame));
    description->verticalScrollBar()->setSingleStep(line);
}

void ScaleFields::initialize()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(dialog_panel::margins);
    column->setSpacing(rowSpacing);
    QFormLayout* rows = fieldRows();
    column->addLayout(rows, 1);
    column->setAlignment(rows, Qt::AlignTop);
    column->addWidget(message, 0, Qt::AlignHCenter);
    column->addLayout(buttonRow());
}

QFormLayout* ScaleFields::fieldRows()
{
    auto* shortNames = new QHBoxLayout;
    shortNames->setSpacing(columnSpacing);
    shortNames->addWidget(abbr1);
    shortNames->addWidget(abbr2);
    shortNames->addStretch();
    auto* rows = new QFormLayout;
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setVerticalSpacing(rowSpacing);
    rows->setHorizontalSpacing(columnSpacing);
    rows->addRow(tr("Title"), title);
    rows->addRow(tr("Short name"), shortNames);
    if (category)
        rows->addRow(tr("Category"), category);
    rows->addRow(tr("Description"), description);
    return rows;
}

QBoxLayout* ScaleFields::buttonRow()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(dialog_panel::buttonSpacing);
    row->addStretch();
    const auto add = [&](const QString& text, const QString& name, void (ScaleFields::*clicked)()) {
        auto* button = new QPushButton(text, this);
        dialog_panel::dressButton(*button, name);
        connect(button, &QPushButton::clicked, this, clicked);
        row->addWidget(button);
    };
    add(tr("Cancel"), QStringLiteral("cancelButton"), &ScaleFields::cancelled);
    add(tr("Save"), QStringLiteral("okButton"), &ScaleFields::saved);
    return row;
}

QList<QWidget*> ScaleFields::fields() const
{
    QList<QWidget*> list{title, abbr1, abbr2};
    if (category)
        list.append(category);
    list.append(description);
    return list;
}

QWidget* ScaleFields::field(int number) const
{
    switch (number) {
    case abbr1_field:
        return abbr1;
    case abbr2_field:
        return abbr2;
    case description_field:
        return description;
    default:
        return title;
    }
}

bool ScaleFields::isNamed() const
{
    return !title->text().trimmed().isEmpty() && !abbr1->text().isEmpty() && !abbr2->text().isEmpty();
}

QString ScaleFields::findRightAbbrText(const QString& text)
{
    QString beginning = text;
    while (!beginning.isEmpty() && !mayBeShortName(beginning))
        beginning.chop(1);
    return beginning;
}

void ScaleFields::setAbbr1(const QString& text)
{
    put(first, findRightAbbrText(text));
}

void ScaleFields::setAbbr2(const QString& text)
{
    put(second, findRightAbbrText(text));
}

void ScaleFields::keepAbbr1(const QString& text)
{
    put(first, text);
}

void ScaleFields::keepAbbr2(const QString& text)
{
    put(second, text);
}

void ScaleFields::put(ShortName& changed, const QString& text)
{
    changed.lastGood = text;
    changed.edit->setText(text);
}

void ScaleFields::setCurrentCategory(const QString& name)
{
    const int index = category->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        category->setCurrentIndex(index);
}

void ScaleFields::setCategoryList(const QStringList& names)
{
    const QString choice = category->currentText();
    category->clear();
    category->addItems(names);
    setCurrentCategory(choice);
}

// What code puts into the edit is no change by the user.
void ScaleFields::abbr1TextChange(const QString& text)
{
    if (sender() == abbr1)
        follow(first, second, text);
}

void ScaleFields::abbr2TextChange(const QString& text)
{
    if (sender() == abbr2)
        follow(second, first, text);
}

void ScaleFields::follow(ShortName& changed, const ShortName& other, const QString& text)
{
    // A name of the factory may be too wide; it can be made shorter.
    const bool shrinks = !mayBeShortName(changed.lastGood) && isRestOf(text, changed.lastGood);
    changed.error = !mayBeShortName(text) && !shrinks;
    changed.edit->setStyleSheet(changed.error ? badStyle : goodStyle);
    if (changed.error) {
        takeBack(changed, text);
        message->setText(tr("max 5-7 chars allowed(width-dependant), no SPACE, \"A-Z\",\"a-z\" and special "
                            "chars only \"*?()+/-#0123456789\""));
        message->show();
        return;
    }
    changed.lastGood = text;
    if (!other.error)
        message->setText(noMessage);
}

// The cursor goes back to where it stood before what was typed, or to the end of what that has replaced:
// there the same text follows it as now.
void ScaleFields::takeBack(ShortName& changed, const QString& text)
{
    const int behind = text.size() - changed.edit->cursorPosition();
    const int cursor = changed.lastGood.size() - behind;
    changed.edit->setText(changed.lastGood);
    changed.edit->setCursorPosition(qBound(0, cursor, changed.lastGood.size()));
}
