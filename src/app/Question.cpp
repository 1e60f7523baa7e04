#include "app/Question.h"

#include "editor/Theme.h"

#include <QCoreApplication>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <deque>

namespace velvane {

namespace {

// Logical pixels.
constexpr int iconSize = 56;
constexpr int textWidth = 360;

QMessageBox::ButtonRole role(qsizetype index, qsizetype count)
{
    if (index == 0)
        return QMessageBox::AcceptRole;
    return index == count - 1 ? QMessageBox::RejectRole : QMessageBox::DestructiveRole;
}

void addAnswers(QMessageBox &box, const QStringList &answers)
{
    for (qsizetype i = 0; i < answers.size(); ++i) {
        QPushButton *button = box.addButton(answers[i], role(i, answers.size()));
        button->setProperty("answer", int(i));
        if (i == 0) {
            button->setProperty("look", QStringLiteral("primary"));
            // The box has styled it by now.
            button->style()->unpolish(button);
            button->style()->polish(button);
            box.setDefaultButton(button);
        }
        if (i == answers.size() - 1)
            box.setEscapeButton(button);
    }
}

// The question stands out from its detail, and neither wraps after a few words.
void layOut(QMessageBox &box)
{
    auto *text = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!text)
        return;
    if (!box.informativeText().isEmpty())
        text->setFont(Theme::font(TextSize::body, QFont::DemiBold));
    // The box itself wraps what is wider.
    if (text->sizeHint().width() < textWidth)
        text->setMinimumWidth(textWidth);
}

// A box that has been answered is hidden, and deleted later.
QMessageBox *openBox(const QWidget *over)
{
    if (!over)
        return nullptr;
    for (QMessageBox *box : over->findChildren<QMessageBox *>())
        if (box->isVisible())
            return box;
    return nullptr;
}

struct Asked {
    Question question;
    std::function<void(int)> answered;
};

/// The questions of one window that wait for the open one, first come first.
class Waiting : public QObject {
public:
    static Waiting &of(QWidget &over)
    {
        for (QObject *child : over.children())
            if (auto *found = dynamic_cast<Waiting *>(child))
                return *found;
        return *new Waiting(over);
    }

    bool has(const Question &question) const
    {
        return std::ranges::any_of(
            m_asked, [&](const Asked &asked) { return asked.question.text == question.text; });
    }
    void add(Asked asked) { m_asked.push_back(std::move(asked)); }
    /// Asks the next one, unless an answer has led to another.
    void goOn()
    {
        if (m_asked.empty() || openBox(&m_over))
            return;
        const Asked next = std::move(m_asked.front());
        m_asked.pop_front();
        ask(&m_over, next.question, next.answered);
    }

private:
    explicit Waiting(QWidget &over) : QObject(&over), m_over(over) {}

    QWidget &m_over;
    std::deque<Asked> m_asked;
};

int lastOf(const Question &question)
{
    return int(question.answers.size()) - 1;
}

// While a box is open: brings it to the front, and has the question wait unless it is there
// already.
void askLater(QMessageBox &open, QWidget &over, const Asked &asked)
{
    open.raise();
    open.activateWindow();
    Waiting &waiting = Waiting::of(over);
    if (open.text() != asked.question.text && !waiting.has(asked.question))
        return waiting.add(asked);
    if (asked.answered)
        asked.answered(lastOf(asked.question));
}

} // namespace

Question Question::message(const QString &text, const QString &detail)
{
    return {text, detail, {QCoreApplication::translate("Question", "OK")}};
}

void ask(QWidget *over, const Question &question, const std::function<void(int)> &answered)
{
    if (QMessageBox *open = openBox(over))
        return askLater(*open, *over, {question, answered});
    auto *box = new QMessageBox(over);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QCoreApplication::translate("Question", "Velvane"));
    box->setIconPixmap(QIcon(QStringLiteral(":/app/velvane.svg")).pixmap(iconSize));
    box->setText(question.text);
    box->setInformativeText(question.detail);
    layOut(*box);
    addAnswers(*box, question.answers);
    const QPointer<QWidget> window(over);
    QObject::connect(box, &QDialog::finished, box, [=, last = lastOf(question)] {
        const QAbstractButton *clicked = box->clickedButton();
        if (answered)
            answered(clicked ? clicked->property("answer").toInt() : last);
        if (window)
            Waiting::of(*window).goOn();
    });
    box->open();
}

} // namespace velvane
