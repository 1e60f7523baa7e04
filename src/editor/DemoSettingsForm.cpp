#include "editor/DemoSettingsForm.h"

#include "editor/Controls.h"
#include "editor/DemoSettings.h"
#include "editor/FormRow.h"
#include "editor/IconButton.h"
#include "editor/Metrics.h"
#include "editor/NumberField.h"
#include "editor/Theme.h"

#include <QFileDialog>
#include <QFontMetrics>
#include <QImageReader>
#include <QLabel>
#include <QVBoxLayout>

namespace velvane {

namespace {

constexpr QSize thumbnail(96, 60);

QStringList pictureFilters()
{
    QStringList patterns;
    for (const QByteArray &format : QImageReader::supportedImageFormats())
        patterns << QStringLiteral("*.") + QString::fromLatin1(format);
    return patterns;
}

QPixmap thumbnailOf(const QImage &picture, qreal ratio)
{
    const QImage scaled =
        picture.scaled(thumbnail * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap pixmap = QPixmap::fromImage(scaled);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

// The fields of both rows stand below each other, however wide their letters are.
int DemoSettingsForm::axisWidth(int column)
{
    const QFontMetrics metrics(Theme::font(TextSize::secondary));
    const auto width = [&](const QString &text) {
        return metrics.size(Qt::TextShowMnemonic, text).width();
    };
    return column == 0 ? std::max(width(tr("W")), width(tr("X")))
                       : std::max(width(tr("H")), width(tr("Y")));
}

DemoSettingsForm::DemoSettingsForm(Project &project, FieldEditing &editing, Screens &screens,
                                   StatusLine &status, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_screens(screens)
    , m_status(status)
    , m_binding(editing)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::gap);
    auto *title = new QLabel(tr("Demo"), this);
    title->setFont(Theme::font(TextSize::body, QFont::DemiBold));
    column->addWidget(title);
    addCanvas();
    FormRow *rate = addRow(tr("Rate"));
    addNumbers(*rate, {{}}, {tr("Frame rate")}, {Field::Kind::fps});
    rate->addText(tr("fps"));
    rate->addStretch();
    FormRow *start = addRow(tr("Start"));
    addNumbers(*start, {tr("X"), tr("Y")}, {tr("Start X"), tr("Start Y")},
               {Field::Kind::startX, Field::Kind::startY});
    start->addStretch();
    addBackdrop();

    for (const auto changed : {&Project::canvasSizeChanged, &Project::fpsChanged,
                               &Project::startPointChanged, &Project::backgroundChanged})
        connect(&m_project, changed, this, &DemoSettingsForm::update);
    update();
}

FormRow *DemoSettingsForm::addRow(const QString &label)
{
    auto *row = new FormRow(label, this);
    layout()->addWidget(row);
    m_rows << row;
    return row;
}

void DemoSettingsForm::addNumbers(FormRow &row, const QStringList &texts, const QStringList &names,
                                  const QList<Field::Kind> &fields)
{
    for (int i = 0; i < fields.size(); ++i) {
        if (!texts.at(i).isEmpty())
            row.addText(texts.at(i), axisWidth(i));
        auto *field =
            new NumberField(NumberField::Kind::coordinate, names.at(i), names.at(i), this);
        m_binding.add(*field, [kind = fields.at(i)] { return Field{kind}; });
        row.add(field);
    }
}

void DemoSettingsForm::addCanvas()
{
    FormRow *canvas = addRow(tr("Canvas"));
    addNumbers(*canvas, {tr("W"), tr("H")}, {tr("Canvas width"), tr("Canvas height")},
               {Field::Kind::canvasWidth, Field::Kind::canvasHeight});
    canvas->addStretch();
    FormRow *match = addRow({});
    const QString help = tr("Make the canvas as large as the primary display");
    auto *button =
        Controls::button(QStringLiteral("macwindow"), tr("Match Screen"), help, {}, this);
    Controls::setUsable(*button, help, m_screens.missing());
    connect(button, &QAbstractButton::clicked, this, [this] {
        if (!DemoSettings::matchScreen(m_project, m_screens))
            m_status.setMessage(tr("No display was found."));
    });
    match->add(button);
    match->addStretch();
}

void DemoSettingsForm::addBackdrop()
{
    FormRow *pictureRow = addRow(tr("Picture"));
    m_picture = new QLabel(this);
    m_picture->setFixedSize(thumbnail);
    m_picture->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_picture->setAccessibleName(tr("Backdrop picture"));
    m_picture->setProperty("look", QStringLiteral("hint"));
    pictureRow->add(m_picture);
    pictureRow->addStretch();
    FormRow *buttons = addRow({});
    auto *choose =
        Controls::button({}, tr("Choose…"), tr("Choose a picture as the backdrop"), {}, this);
    m_remove = Controls::button({}, tr("Remove"), tr("Remove the backdrop picture"), {}, this);
    connect(choose, &QAbstractButton::clicked, this, &DemoSettingsForm::chooseBackdrop);
    connect(m_remove, &QAbstractButton::clicked, this,
            [this] { DemoSettings::removeBackdrop(m_project); });
    buttons->add(choose);
    buttons->add(m_remove);
    buttons->addStretch();
}

void DemoSettingsForm::chooseBackdrop()
{
    auto *dialog = new QFileDialog(this, tr("Choose Backdrop"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    Controls::makeRoom(*dialog);
    dialog->setNameFilters(
        {tr("Pictures (%1)").arg(pictureFilters().join(QLatin1Char(' '))), tr("All files (*)")});
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &file) {
        if (const auto refusal = DemoSettings::setBackdrop(m_project, file))
            m_status.setMessage(*refusal);
    });
    dialog->open();
}

void DemoSettingsForm::update()
{
    m_binding.update();
    const QImage &picture = m_project.background();
    m_picture->setFixedHeight(picture.isNull() ? Metrics::fieldHeight : thumbnail.height());
    if (picture.isNull())
        m_picture->setText(tr("None"));
    else
        m_picture->setPixmap(thumbnailOf(picture, devicePixelRatioF()));
    Controls::setUsable(*m_remove, tr("Remove the backdrop picture"),
                        picture.isNull() ? tr("There is no backdrop picture.") : QString());
}

void DemoSettingsForm::setLabelColumn(int width)
{
    for (FormRow *row : m_rows)
        row->setLabelColumn(width);
}

} // namespace velvane
