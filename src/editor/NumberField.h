#pragma once

#include <QLineEdit>

namespace velvane {

/// A small text field for one number, in the locale's decimal format.
///
/// The up and down arrows bump it by a step; with Shift, and by Page Up and Page Down, by a larger
/// one. What is no number changes nothing and gives way to the value when the field is left.
class NumberField : public QLineEdit {
    Q_OBJECT
public:
    enum class Kind { seconds, coordinate };

    NumberField(Kind kind, const QString &name, const QString &help, QWidget *parent = nullptr);

    /// Shows a value. What is typed keeps its text while the value comes of it.
    void setValue(double value);
    /// What the field says; nothing when it says no number.
    std::optional<double> value() const;
    /// How the field writes a value.
    QString format(double value) const;

Q_SIGNALS:
    void focused();
    void left();
    void valueTyped(double value);
    /// To be bumped by that much.
    void bumped(double delta);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void showValue();
    void readText();

    Kind m_kind;
    double m_value = 0;
    bool m_typing = false;
    bool m_announcing = false;
};

} // namespace velvane
