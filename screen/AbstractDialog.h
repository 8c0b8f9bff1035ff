#pragma once

#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <memory>

class MainWnd;
class QEventLoop;
class QKeyEvent;

/// A dialog inside the window: a dark layer over its whole parent with a panel in the middle. It takes the
/// focus when shown and gives it to the input keyboard, or to the dialog below, at its end. Pointer and Tab
/// stay inside. Main thread only.
class AbstractDialog : public QWidget
{
    Q_OBJECT

public:
    explicit AbstractDialog(QWidget* parent);
    /// Ends a run that is under way, without a signal.
    ~AbstractDialog() override;

    /// Shows the dialog and runs until it is accepted (1) or rejected (0). The stage is still meanwhile:
    /// MainWnd::dialogOpen is set. A run that is ended from outside, as the program's end does, is rejected.
    int exec();
    void setVisible(bool visible) override;

    bool wasAccepted = false; ///< by the last run
    bool wasRejected = false; ///< by the last run

public slots:
    virtual void accept();
    virtual void reject();
    /// Return and Enter without modifiers accept, Escape rejects. An open popup, such as a combo box's list,
    /// comes first: Enter chooses in it, Escape closes it.
    void specialKeyPress(int key);

signals:
    void accepted();
    void rejected();

protected:
    /// The widget in the middle.
    void setPanel(QWidget* widget);
    /// Likewise, with a picture below it, whose size it takes; the other size if there is no picture.
    void setPanel(QWidget* widget, const QString& picturePath, const QSize& otherwise);
    /// Appends a field to the Tab order. Text fields get their spaces here.
    void addField(QWidget* field);
    /// What takes the focus at each show: a line edit with all its text selected. The layer itself if none.
    void setFirstFocus(QWidget* field) { firstFocus = field; }

    bool eventFilter(QObject* object, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // Layer and panel (AbstractDialog.cpp)
    [[nodiscard]] QList<QWidget*> reachableFields() const;
    void coverParent();
    void centrePanel();
    void takeFocus();

    // The run (AbstractDialog_run.cpp)
    [[nodiscard]] MainWnd* livingWindow() const;
    [[nodiscard]] bool isRunning() const;
    void finish(bool accepts);
    void leave();
    [[nodiscard]] bool takesKeys() const;

    const QPointer<QObject> mainWindow;
    const std::shared_ptr<QEventLoop> loop; ///< shared with exec(), which may outlive the dialog
    QPointer<QWidget> panel;
    QPixmap panelPicture;
    QList<QWidget*> fields;
    QPointer<QWidget> firstFocus;
    QPointer<QWidget> focusBelow; ///< what had the focus when the run began
    bool popupHadKey = false;     ///< the last key was a popup's, which may be closed by now
};
