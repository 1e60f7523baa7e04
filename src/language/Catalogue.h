#pragma once

#include <QTranslator>

namespace velvane {

/// The texts of one language, by their English text: the class that shows a text does not matter.
class Catalogue : public QTranslator {
    Q_OBJECT
public:
    /// `file` without ".qm"; empty for a catalogue without texts.
    explicit Catalogue(const QString &file = {}, QObject *parent = nullptr);

    /// Reads another file; when that fails there are no texts.
    void use(const QString &file);

    QString translate(const char *context, const char *english, const char *comment = nullptr,
                      int n = -1) const override;
};

} // namespace velvane
