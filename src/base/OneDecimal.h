#pragma once

#include <QLocale>
#include <QString>

namespace velvane {

/// A number with one decimal as the user's language writes it, without marks between thousands.
inline QString oneDecimal(double number, QLocale locale = QLocale())
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, 'f', 1);
}

} // namespace velvane
