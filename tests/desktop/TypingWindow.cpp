// A window to type into, for tests: a Qt program whose file always holds the text that it shows.
//
// usage: typing-window FILE, which appears once the window has the focus

#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>

namespace {

class TypingWindow final : public QPlainTextEdit {
public:
    explicit TypingWindow(const QString &path) : m_path(path)
    {
        setWindowTitle("typing-window");
        connect(this, &QPlainTextEdit::textChanged, this, &TypingWindow::write);
    }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QPlainTextEdit::focusInEvent(event);
        write();
    }

private:
    void write() const
    {
        QFile file(m_path);
        if (file.open(QFile::WriteOnly))
            file.write(toPlainText().toUtf8());
    }

    const QString m_path;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    TypingWindow window(QApplication::arguments().value(1));
    window.resize(900, 700);
    window.show();
    return QApplication::exec();
}
