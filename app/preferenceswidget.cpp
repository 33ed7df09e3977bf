#include "preferenceswidget.h"

#include "settingvalues.h"

#include "mainwindow/userdialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>

namespace TVX::VIEWER {

namespace {

const QString useDefaultLanguageKey = QStringLiteral("global/useDefaultLanguage");
const QString nonDefaultLanguageKey = QStringLiteral("global/nonDefaultLanguage");
const QString showStationMarksKey = QStringLiteral("global/showStationMarks");
const QString minDistKey = QStringLiteral("global/stationMarksMinDist");
const QString maxDistKey = QStringLiteral("global/stationMarksMaxDist");
const QString defaultViewTypeKey = QStringLiteral("global/default_view_type");

// Stored by item index of the language box. English is the untranslated interface; start-up
// knows no translation for "EN".
const QStringList languageCodes = {
    QStringLiteral("EN"), QStringLiteral("DE"), QStringLiteral("IT"), QStringLiteral("ES"), QStringLiteral("FR")};

constexpr double minDistDefault = 0.2;
constexpr double maxDistDefault = 15.0;
constexpr int viewTypeCount = 4; // same as the active window, planar, spherical, point cloud

QDoubleSpinBox* distanceBox(const QString& objectName, QWidget* parent)
{
    auto* box = new QDoubleSpinBox(parent);
    box->setObjectName(objectName);
    box->setRange(0.2, 9999.99);
    box->setDecimals(2);
    return box;
}

} // namespace

struct PreferencesWidget::Private {
    std::unique_ptr<TVX::CORE::UserDialogs> dialogs;
    QRadioButton* systemLanguage{nullptr};
    QRadioButton* otherLanguage{nullptr};
    QComboBox* language{nullptr};
    QCheckBox* showStationMarks{nullptr};
    QDoubleSpinBox* minDist{nullptr};
    QDoubleSpinBox* maxDist{nullptr};
    QComboBox* defaultViewType{nullptr};
    QGroupBox* languageGroup{nullptr};
    QGroupBox* parameterGroup{nullptr};
};

PreferencesWidget::PreferencesWidget(QWidget* parent) : QDialog(parent), d(std::make_unique<Private>())
{
    d->dialogs = std::make_unique<TVX::CORE::UserDialogs>(this);
    setWindowTitle(tr("Edit Preferences"));
    buildLanguageGroup();
    buildParameterGroup();

    auto* resetGroup = new QGroupBox(tr("Reset:"), this);
    auto* resetButton = new QPushButton(tr("Reset Application Settings to Defaults"), resetGroup);
    resetButton->setObjectName(QStringLiteral("pb_resetToDefaultSettings"));
    resetButton->setAutoDefault(false);
    connect(resetButton, &QPushButton::pressed, this, &PreferencesWidget::resetToDefaultSettings);
    auto* resetLayout = new QVBoxLayout(resetGroup);
    resetLayout->addWidget(resetButton);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &PreferencesWidget::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PreferencesWidget::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(d->languageGroup);
    layout->addWidget(d->parameterGroup);
    layout->addWidget(resetGroup);
    layout->addStretch();
    layout->addWidget(buttons);

    loadSettings();
}

PreferencesWidget::~PreferencesWidget() = default;

void PreferencesWidget::buildLanguageGroup()
{
    d->languageGroup = new QGroupBox(tr("Language Selection:"), this);
    d->systemLanguage = new QRadioButton(tr("Use System Default"), d->languageGroup);
    d->systemLanguage->setObjectName(QStringLiteral("rb_systemlang"));
    d->otherLanguage = new QRadioButton(tr("Use Other than System Default"), d->languageGroup);
    d->otherLanguage->setObjectName(QStringLiteral("rb_nonsystemlang"));
    d->language = new QComboBox(d->languageGroup);
    d->language->setObjectName(QStringLiteral("cb_language"));
    // In the order of the codes, which are stored by item index.
    d->language->addItems({tr("English"), tr("German"), tr("Italian"), tr("Spanish"), tr("French")});
    // The choice of language matters only when the system's is not followed.
    connect(d->otherLanguage, &QRadioButton::toggled, d->language, &QComboBox::setEnabled);
    d->language->setEnabled(false);

    auto* layout = new QVBoxLayout(d->languageGroup);
    layout->addWidget(d->systemLanguage);
    layout->addWidget(d->otherLanguage);
    layout->addWidget(d->language);
}

void PreferencesWidget::buildParameterGroup()
{
    d->parameterGroup = new QGroupBox(tr("Application Parameter:"), this);
    d->showStationMarks = new QCheckBox(tr("Show Station Marks"), d->parameterGroup);
    d->showStationMarks->setObjectName(QStringLiteral("cb_showStationMarks"));
    d->minDist = distanceBox(QStringLiteral("dsb_stationmarksMinDist"), d->parameterGroup);
    d->maxDist = distanceBox(QStringLiteral("dsb_stationmarksMaxDist"), d->parameterGroup);
    connect(d->showStationMarks, &QCheckBox::toggled, d->minDist, &QDoubleSpinBox::setEnabled);
    connect(d->showStationMarks, &QCheckBox::toggled, d->maxDist, &QDoubleSpinBox::setEnabled);
    d->defaultViewType = new QComboBox(d->parameterGroup);
    d->defaultViewType->setObjectName(QStringLiteral("cb_defaultViewOpeningType"));
    d->defaultViewType->addItems(
        {tr("Same as Active Window"), tr("Planar View"), tr("Spherical View"), tr("PointCloud View")});

    auto* layout = new QFormLayout(d->parameterGroup);
    layout->addRow(d->showStationMarks);
    layout->addRow(tr("minimal Distance:"), d->minDist);
    layout->addRow(tr("maximal Distance:"), d->maxDist);
    layout->addRow(tr("View to be opened by default:"), d->defaultViewType);
}

void PreferencesWidget::setUserDialogs(std::unique_ptr<TVX::CORE::UserDialogs> dialogs)
{
    if (dialogs)
        d->dialogs = std::move(dialogs);
}

void PreferencesWidget::loadSettings()
{
    const QSettings settings;
    const bool systemLanguage = settingBool(settings, useDefaultLanguageKey, true);
    d->systemLanguage->setChecked(systemLanguage);
    d->otherLanguage->setChecked(!systemLanguage);
    // Compared exactly, as start-up does; an unknown code leaves English selected.
    const QString code = settings.value(nonDefaultLanguageKey).toString();
    d->language->setCurrentIndex(std::max(0, int(languageCodes.indexOf(code))));

    const bool marks = settingBool(settings, showStationMarksKey, true);
    d->showStationMarks->setChecked(marks);
    d->minDist->setEnabled(marks);
    d->maxDist->setEnabled(marks);
    d->minDist->setValue(settingDouble(settings, minDistKey, minDistDefault));
    d->maxDist->setValue(settingDouble(settings, maxDistKey, maxDistDefault));
    d->defaultViewType->setCurrentIndex(settingInt(settings, defaultViewTypeKey, 0, 0, viewTypeCount - 1));
}

void PreferencesWidget::saveSettings()
{
    QSettings settings;
    settings.setValue(useDefaultLanguageKey, d->systemLanguage->isChecked());
    settings.setValue(nonDefaultLanguageKey, languageCodes.value(d->language->currentIndex(), languageCodes.first()));
    settings.setValue(showStationMarksKey, d->showStationMarks->isChecked());
    settings.setValue(minDistKey, d->minDist->value());
    settings.setValue(maxDistKey, d->maxDist->value());
    settings.setValue(defaultViewTypeKey, d->defaultViewType->currentIndex());
}

void PreferencesWidget::accept()
{
    saveSettings();
    QDialog::accept();
}

void PreferencesWidget::resetToDefaultSettings()
{
    {
        QSettings settings;
        settings.clear();
        settings.sync();
    }
    loadSettings();
    d->dialogs->information(tr("Reset Application Settings"),
                            tr("All application settings are reset to their defaults. Please restart all "
                               "Tarvnix applications before you continue."));
}

} // namespace TVX::VIEWER
