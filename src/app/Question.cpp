#include "app/Question.h"

#include "editor/Theme.h"

#include <QCoreApplication>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>

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

} // namespace

Question Question::message(const QString &text, const QString &detail)
{
    return {text, detail, {QCoreApplication::translate("Question", "OK")}};
}

void ask(QWidget *over, const Question &question, const std::function<void(int)> &answered)
{
    if (QMessageBox *open = openBox(over)) {
        open->raise();
        open->activateWindow();
        return;
    }
    auto *box = new QMessageBox(over);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QCoreApplication::translate("Question", "Velvane"));
    box->setIconPixmap(QIcon(QStringLiteral(":/app/velvane.svg")).pixmap(iconSize));
    box->setText(question.text);
    box->setInformativeText(question.detail);
    layOut(*box);
    addAnswers(*box, question.answers);
    if (answered)
        QObject::connect(box, &QDialog::finished, box, [=, last = question.answers.size() - 1] {
            const QAbstractButton *clicked = box->clickedButton();
            answered(clicked ? clicked->property("answer").toInt() : int(last));
        });
    box->open();
}

} // namespace velvane
