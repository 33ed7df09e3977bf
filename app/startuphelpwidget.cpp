#include "startuphelpwidget.h"

#include "settingvalues.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QSettings>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace TVX::VIEWER {

namespace {
const QString showStartUpHelpKey = QStringLiteral("global/showStartUpHelp");
} // namespace

StartupHelpWidget::StartupHelpWidget(QWidget* parent) : QDialog(parent)
{
    setModal(true);
    setWindowTitle(tr("Quick Introduction"));
    resize(640, 560);

    auto* browser = new QTextBrowser(this);
    browser->setOpenExternalLinks(false);
    browser->setHtml(introduction());

    auto* showOnStartup = new QCheckBox(tr("Show this help on startup"), this);
    showOnStartup->setObjectName(QStringLiteral("cb_show_on_startup"));
    showOnStartup->setChecked(settingBool(QSettings(), showStartUpHelpKey, true));
    connect(showOnStartup, &QCheckBox::toggled, this, [](bool checked) {
        QSettings().setValue(showStartUpHelpKey, checked);
    });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(browser);
    layout->addWidget(showOnStartup);
    layout->addWidget(buttons);
}

QString StartupHelpWidget::introduction()
{
    return tr(
        "<h2>Welcome to the Scan Viewer</h2>"
        "<p>The viewer shows projects of terrestrial laser scans: you look at the scans, pick 3D "
        "coordinates, measure distances and draw annotations.</p>"

        "<h3>Projects</h3>"
        "<p>A project is a folder that holds a project file and a folder named <i>scans</i> with the scan "
        "files and their panorama images. Open it with <b>File &gt; Open Project</b>; the last ten "
        "projects are listed under <b>File &gt; Recently Opened Files</b>. While you work on a project, "
        "others can only open it read-only.</p>"

        "<h3>The project tree</h3>"
        "<p>The <b>Project</b> dock lists the scans in their folders. Double click a scan to open it in "
        "the default view. The context menu (right mouse button) opens the planar, spherical or point "
        "cloud view of the selected scans, closes their views, and adds scans and folders, renames "
        "folders or deletes items. Drag items to arrange them in folders; the check box of a scan "
        "switches it off and closes its views.</p>"

        "<h3>The three views</h3>"
        "<ul>"
        "<li><b>Planar view</b>: the panorama image of the scan, one pixel per measured cell.</li>"
        "<li><b>Spherical view</b>: the panorama around the scanner's position, as if you stood "
        "there; drag to look around.</li>"
        "<li><b>Point cloud view</b>: the measured points in 3D; drag to turn the cloud.</li>"
        "</ul>"
        "<p>Any number of views can be open at once; <b>Windows</b> arranges or closes them. The zoom "
        "tools and <b>Zoom All</b> change the magnification; hold the middle mouse button, or Ctrl and "
        "the left button, to pan.</p>"

        "<h3>Picking coordinates</h3>"
        "<p>With <b>Pick 3D Coordinates</b> on, click into a view: the point's column, row, "
        "coordinates, reflectance and distance are added to the <b>Point Information</b> dock. "
        "<b>Clear Point List</b> empties the list; <b>Clear Picked Points from View</b> removes the "
        "marks.</p>"

        "<h3>Measuring</h3>"
        "<p>The measuring tools <b>3D Distance</b>, <b>Distance in XY</b> and <b>Delta Z</b> place a "
        "dimensioning between two points you click. <b>Detailed Distance Information</b> shows all "
        "three distances between the last two picked points.</p>"

        "<h3>Annotations</h3>"
        "<p>Draw polygons, rectangles, ellipses and texts with the drawing tools; a polygon is closed "
        "with a double click. <b>Edit Elements</b> lets you move and reshape them. Annotations are kept "
        "per scan and saved with the project by <b>File &gt; Save Project</b>.</p>"

        "<h3>The lens</h3>"
        "<p>Hold Shift while you move the mouse over a planar view: the <b>Lens</b> dock magnifies the "
        "cells around the cursor and shows the coordinates of the cell in its centre.</p>"

        "<h3>Station marks</h3>"
        "<p>The positions of the other scans nearby are shown as station marks. Double click one to "
        "open that scan.</p>"

        "<h3>Preferences</h3>"
        "<p><b>Preferences...</b> in the help menu sets the language, whether station marks are shown "
        "and within which distances, and which view a double click in the project tree opens. "
        "<b>Project Coordinates...</b> shows the coordinate systems of the project.</p>");
}

} // namespace TVX::VIEWER
