#include "showprojectcoordsysdialog.h"

#include "quaternionangles.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLoggingCategory>
#include <QVBoxLayout>

#include <cmath>

Q_LOGGING_CATEGORY(lcCoordSys, "tvx.app.coordsys", QtWarningMsg)

namespace TVX::VIEWER {

namespace {

constexpr double radiansToDegrees = 180.0 / M_PI;

QDoubleSpinBox* valueBox(const QString& objectName, double limit, int decimals, const QString& suffix, QWidget* parent)
{
    auto* box = new QDoubleSpinBox(parent);
    box->setObjectName(objectName);
    box->setRange(-limit, limit);
    box->setDecimals(decimals);
    box->setSuffix(suffix);
    box->setReadOnly(true);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    return box;
}

} // namespace

struct ShowProjectCoordSysDialog::Private {
    // Per entry of the combo box: translation x, y, z (metres), then quaternion a, b, c, d.
    std::vector<std::array<double, 7>> entries;
    std::vector<QString> names;
    QComboBox* systems{nullptr};
    std::array<QDoubleSpinBox*, 3> rotation{};
    std::array<QDoubleSpinBox*, 3> translation{};

    void show(QDoubleSpinBox* box, double value, const QString& what) const
    {
        const bool valid = std::isfinite(value);
        if (!valid)
            qCWarning(lcCoordSys).noquote()
                << "coordinate system" << systems->currentText() << "has no number for" << what;
        box->setEnabled(valid);
        box->setToolTip(valid ? QString()
                              : ShowProjectCoordSysDialog::tr("The project file holds no valid number here."));
        box->setValue(valid ? value : 0.0);
    }
};

ShowProjectCoordSysDialog::ShowProjectCoordSysDialog(
    const std::array<double, 3>& origin,
    const std::vector<TVX::CORE::TVXProjectContent::CoordinateSystem>& coordinateSystems, quint32 currentIndex,
    QWidget* parent)
    : QDialog(parent), d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("dlg_show_project_cs"));
    setWindowTitle(tr("Project Coordinate Systems"));

    d->entries.push_back({origin[0], origin[1], origin[2], 0.0, 0.0, 0.0, 1.0});
    d->names.push_back(tr("default"));
    for (const auto& system : coordinateSystems) {
        d->entries.push_back(system.values);
        d->names.push_back(system.name);
    }

    d->systems = new QComboBox(this);
    d->systems->setObjectName(QStringLiteral("cb_coordinatesystem"));
    for (const QString& name : d->names)
        d->systems->addItem(name);

    auto* rotationGroup = new QGroupBox(tr("Rotation"), this);
    auto* rotationLayout = new QFormLayout(rotationGroup);
    auto* translationGroup = new QGroupBox(tr("Translation"), this);
    auto* translationLayout = new QFormLayout(translationGroup);
    const char* const axes[] = {"x", "y", "z"};
    for (int axis = 0; axis < 3; ++axis) {
        const QString name = QLatin1String(axes[axis]);
        d->rotation[axis] =
            valueBox(QStringLiteral("dsp_rotation_") + name, 360.0, 4, QStringLiteral(" °"), rotationGroup);
        rotationLayout->addRow(name + QLatin1Char(':'), d->rotation[axis]);
        d->translation[axis] = valueBox(QStringLiteral("dsp_translation_") + name, 1e9, 3, QString(), translationGroup);
        translationLayout->addRow(tr("%1 (m):").arg(name), d->translation[axis]);
    }

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    auto* chooser = new QFormLayout;
    chooser->addRow(tr("Coordinate system:"), d->systems);
    layout->addLayout(chooser);
    layout->addWidget(rotationGroup);
    layout->addWidget(translationGroup);
    layout->addWidget(buttons);

    const int start = currentIndex < d->entries.size() ? int(currentIndex) : 0;
    d->systems->setCurrentIndex(start);
    change_coord_sys(start);
    connect(d->systems, &QComboBox::currentIndexChanged, this, &ShowProjectCoordSysDialog::change_coord_sys);
}

ShowProjectCoordSysDialog::~ShowProjectCoordSysDialog() = default;

void ShowProjectCoordSysDialog::change_coord_sys(int index)
{
    if (index < 0 || size_t(index) >= d->entries.size())
        return;
    const std::array<double, 7>& values = d->entries[size_t(index)];
    const std::array<double, 3> angles = quaternionToAngles(values[3], values[4], values[5], values[6]);
    for (size_t axis = 0; axis < 3; ++axis) {
        d->show(d->translation[axis], values[axis], QStringLiteral("translation %1").arg(axis));
        d->show(d->rotation[axis], angles[axis] * radiansToDegrees, QStringLiteral("rotation %1").arg(axis));
    }
}

} // namespace TVX::VIEWER
