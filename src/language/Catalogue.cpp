#include "language/Catalogue.h"

namespace velvane {

Catalogue::Catalogue(const QString &file, QObject *parent) : QTranslator(parent)
{
    if (!file.isEmpty())
        use(file);
}

void Catalogue::use(const QString &file)
{
    // A failure leaves an empty translator.
    (void)load(file);
}

QString Catalogue::translate(const char *, const char *english, const char *comment, int n) const
{
    return QTranslator::translate("Velvane", english, comment, n);
}

} // namespace velvane
