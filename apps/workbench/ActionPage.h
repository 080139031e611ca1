#pragma once

#include <QtCore/QList>
#include <QtWidgets/QScrollArea>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace ORVTListview {

// What stands in the window in place of a project: a title, a text, and buttons for what can be
// done. The first button has the focus when the page is shown, unless another one is preferred.
class ActionPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit ActionPage(QWidget *parent);

    // After a change of language.
    virtual void retranslate() = 0;

protected:
    // Letter for letter. Without a text there is no room for one.
    void setTitle(const QString &title);
    void setText(const QString &text);

    // In a row.
    QPushButton *addButton();

    // Under each other, each with a text that explains it; all as wide as the widest.
    struct Step
    {
        QPushButton *button = nullptr;
        QLabel *text = nullptr;
    };
    Step addStep();
    void setStep(const Step &step, const QString &caption, const QString &text);

    void prefer(QPushButton &button) { m_preferred = &button; }

    // Below the buttons.
    void addBelow(QWidget &widget);

    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void add(QLabel &label);
    void enlargeTitle();
    void alignSteps();

    QVBoxLayout *m_body;
    QLabel *m_title;
    QLabel *m_text;
    QHBoxLayout *m_row = nullptr; // of the buttons that are in one
    QList<Step> m_steps;
    QPushButton *m_preferred = nullptr;
};

} // namespace ORVTListview
