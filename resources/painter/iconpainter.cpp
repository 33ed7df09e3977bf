#include "iconpainter.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <cmath>
#include <functional>
#include <map>

namespace {

// One palette for everything: dark slate outlines, a blue accent, and signal colours.
const QColor outline(0x2b, 0x3a, 0x4a);
const QColor accent(0x2f, 0x7f, 0xd1);
const QColor accentLight(0xc9, 0xe0, 0xf6);
const QColor measure(0xe0, 0x7b, 0x24);
const QColor add(0x2e, 0x9e, 0x55);
const QColor remove(0xd2, 0x3c, 0x3c);
const QColor paper(0xfb, 0xfc, 0xfd);
const QColor folderFill(0xf2, 0xc1, 0x4e);

using Draw = std::function<void(QPainter&)>;

QPen stroke(const QColor& colour, qreal width = 2.0)
{
    return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void setStroke(QPainter& p, const QColor& colour, qreal width = 2.0, const QBrush& fill = Qt::NoBrush)
{
    p.setPen(stroke(colour, width));
    p.setBrush(fill);
}

void folder(QPainter& p, bool open = false)
{
    QPainterPath back;
    back.moveTo(3, 9);
    back.lineTo(3, 26);
    back.lineTo(28, 26);
    back.lineTo(28, 11);
    back.lineTo(15, 11);
    back.lineTo(12, 7);
    back.lineTo(5, 7);
    back.closeSubpath();
    setStroke(p, outline, 1.6, folderFill.darker(110));
    p.drawPath(back);
    QPainterPath front;
    if (open) {
        front.moveTo(3, 26);
        front.lineTo(8, 15);
        front.lineTo(31, 15);
        front.lineTo(28, 26);
    } else {
        front.moveTo(3, 26);
        front.lineTo(3, 14);
        front.lineTo(28, 14);
        front.lineTo(28, 26);
    }
    front.closeSubpath();
    setStroke(p, outline, 1.6, folderFill);
    p.drawPath(front);
}

void document(QPainter& p, const QRectF& r = QRectF(6, 3, 20, 26))
{
    const qreal fold = r.width() * 0.3;
    QPainterPath page;
    page.moveTo(r.left(), r.top());
    page.lineTo(r.right() - fold, r.top());
    page.lineTo(r.right(), r.top() + fold);
    page.lineTo(r.right(), r.bottom());
    page.lineTo(r.left(), r.bottom());
    page.closeSubpath();
    setStroke(p, outline, 1.6, paper);
    p.drawPath(page);
    setStroke(p, outline, 1.2);
    p.drawLine(QPointF(r.right() - fold, r.top()), QPointF(r.right() - fold, r.top() + fold));
    p.drawLine(QPointF(r.right() - fold, r.top() + fold), QPointF(r.right(), r.top() + fold));
}

// A small round badge in the lower right corner: plus, minus or cross.
enum class Badge { Plus, Minus, Cross };

void badge(QPainter& p, Badge kind, const QColor& colour, const QPointF& centre = QPointF(24, 24))
{
    setStroke(p, Qt::white, 1.5, colour);
    p.drawEllipse(centre, 7, 7);
    setStroke(p, Qt::white, 2.2);
    const qreal a = 3.5;
    switch (kind) {
    case Badge::Plus:
        p.drawLine(centre + QPointF(-a, 0), centre + QPointF(a, 0));
        p.drawLine(centre + QPointF(0, -a), centre + QPointF(0, a));
        break;
    case Badge::Minus:
        p.drawLine(centre + QPointF(-a, 0), centre + QPointF(a, 0));
        break;
    case Badge::Cross:
        p.drawLine(centre + QPointF(-2.8, -2.8), centre + QPointF(2.8, 2.8));
        p.drawLine(centre + QPointF(-2.8, 2.8), centre + QPointF(2.8, -2.8));
        break;
    }
}

void magnifier(QPainter& p)
{
    setStroke(p, outline, 3.0);
    p.drawLine(QPointF(19, 19), QPointF(28, 28));
    setStroke(p, outline, 2.0, accentLight);
    p.drawEllipse(QPointF(13, 13), 9, 9);
}

void crosshair(QPainter& p, const QPointF& c, qreal arm, const QColor& colour)
{
    setStroke(p, colour, 2.0);
    p.drawLine(c + QPointF(-arm, 0), c + QPointF(-3, 0));
    p.drawLine(c + QPointF(3, 0), c + QPointF(arm, 0));
    p.drawLine(c + QPointF(0, -arm), c + QPointF(0, -3));
    p.drawLine(c + QPointF(0, 3), c + QPointF(0, arm));
    setStroke(p, colour, 1.0, colour);
    p.drawEllipse(c, 1.6, 1.6);
}

void label(QPainter& p, const QRectF& box, const QString& text, const QColor& colour, int pixelSize)
{
    QFont font(QStringLiteral("Open Sans"));
    font.setPixelSize(pixelSize);
    font.setBold(true);
    p.setFont(font);
    p.setPen(colour);
    p.drawText(box, Qt::AlignCenter, text);
}

// A dimension line between two ticks with a caption above it.
void dimensioning(QPainter& p, const QString& caption, bool vertical)
{
    setStroke(p, measure, 2.0);
    if (vertical) {
        p.drawLine(QPointF(24, 4), QPointF(24, 28));
        p.drawLine(QPointF(19, 4), QPointF(29, 4));
        p.drawLine(QPointF(19, 28), QPointF(29, 28));
        label(p, QRectF(0, 8, 20, 16), caption, outline, 11);
    } else {
        p.drawLine(QPointF(4, 24), QPointF(28, 24));
        p.drawLine(QPointF(4, 19), QPointF(4, 29));
        p.drawLine(QPointF(28, 19), QPointF(28, 29));
        label(p, QRectF(0, 2, 32, 16), caption, outline, 12);
    }
}

void panorama(QPainter& p, bool active)
{
    const QColor sky = active ? accentLight : QColor(0xe4, 0xe6, 0xe8);
    const QColor hills = active ? add : QColor(0x9a, 0xa0, 0xa6);
    setStroke(p, active ? outline : hills, 1.6, sky);
    p.drawRoundedRect(QRectF(2, 8, 28, 16), 2, 2);
    QPainterPath ridge;
    ridge.moveTo(3, 23);
    ridge.lineTo(9, 15);
    ridge.lineTo(14, 20);
    ridge.lineTo(20, 12);
    ridge.lineTo(29, 23);
    ridge.closeSubpath();
    setStroke(p, hills, 1.0, hills);
    p.drawPath(ridge);
}

void sphere(QPainter& p, bool active)
{
    const QColor line = active ? outline : QColor(0x9a, 0xa0, 0xa6);
    QRadialGradient shade(QPointF(12, 11), 16);
    shade.setColorAt(0, Qt::white);
    shade.setColorAt(1, active ? accentLight.darker(110) : QColor(0xdc, 0xde, 0xe0));
    setStroke(p, line, 1.6, shade);
    p.drawEllipse(QPointF(16, 16), 13, 13);
    setStroke(p, active ? accent : line, 1.2);
    p.drawEllipse(QPointF(16, 16), 5.5, 13);
    p.drawLine(QPointF(3, 16), QPointF(29, 16));
    p.drawEllipse(QRectF(4.5, 9, 23, 14).adjusted(0, 0, 0, 0));
}

void pointCloud(QPainter& p, bool active)
{
    const QColor dots = active ? accent : QColor(0x9a, 0xa0, 0xa6);
    p.setPen(Qt::NoPen);
    // A tilted band of points, larger in front, as a scanner sees a wall and the ground.
    for (int i = 0; i < 7; ++i) {
        for (int j = 0; j < 5; ++j) {
            const qreal x = 4 + i * 4 + j * 0.8;
            const qreal y = 6 + j * 4.8 + std::sin(i * 0.9) * 1.5;
            const qreal r = 0.9 + j * 0.22;
            p.setBrush(j % 2 ? dots : dots.darker(130));
            p.drawEllipse(QPointF(x, y), r, r);
        }
    }
}

void addShape(QPainter& p, const std::function<void(QPainter&)>& shape)
{
    setStroke(p, outline, 2.0, accentLight);
    shape(p);
    badge(p, Badge::Plus, add);
}

void cursorCross(QPainter& p)
{
    // The hot spot is pixel (15, 15): its centre is at (15.5, 15.5). A white halo keeps it visible on any scan.
    const QPointF c(15.5, 15.5);
    for (const auto& [colour, width] : {std::pair<QColor, qreal>{Qt::white, 3.0}, {Qt::black, 1.0}}) {
        p.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(c + QPointF(-14, 0), c + QPointF(-3, 0));
        p.drawLine(c + QPointF(3, 0), c + QPointF(14, 0));
        p.drawLine(c + QPointF(0, -14), c + QPointF(0, -3));
        p.drawLine(c + QPointF(0, 3), c + QPointF(0, 14));
    }
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::red);
    p.fillRect(QRectF(15, 15, 1, 1), Qt::red);
}

void cursorSteelModule(QPainter& p)
{
    cursorCross(p);
    // An I-beam section beside the cross marks the steel construction context.
    QPainterPath beam;
    beam.addRect(QRectF(20, 20, 10, 2));
    beam.addRect(QRectF(24, 22, 2, 6));
    beam.addRect(QRectF(20, 28, 10, 2));
    p.setPen(QPen(Qt::white, 1.0));
    p.setBrush(QColor(0x30, 0x30, 0x30));
    p.drawPath(beam.simplified());
}

void logo(QPainter& p)
{
    QLinearGradient fill(0, 0, 0, 32);
    fill.setColorAt(0, accent.lighter(120));
    fill.setColorAt(1, accent.darker(120));
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawRoundedRect(QRectF(1, 1, 30, 30), 6, 6);
    // A scanner on its tripod, sweeping.
    setStroke(p, Qt::white, 1.6);
    p.drawArc(QRectF(6, 4, 20, 20), 30 * 16, 120 * 16);
    p.drawArc(QRectF(10, 8, 12, 12), 30 * 16, 120 * 16);
    setStroke(p, Qt::white, 1.0, Qt::white);
    p.drawRoundedRect(QRectF(13, 13, 6, 6), 1.5, 1.5);
    setStroke(p, Qt::white, 2.0);
    p.drawLine(QPointF(16, 19), QPointF(10, 28));
    p.drawLine(QPointF(16, 19), QPointF(16, 28));
    p.drawLine(QPointF(16, 19), QPointF(22, 28));
}

void splash(QPainter& p, const QSize& size)
{
    const qreal w = size.width();
    const qreal h = size.height();
    QLinearGradient sky(0, 0, 0, h);
    sky.setColorAt(0, QColor(0xf4, 0xf8, 0xfc));
    sky.setColorAt(1, QColor(0xd3, 0xe4, 0xf5));
    p.fillRect(QRectF(0, 0, w, h), sky);
    // Rays of a scan fanning out from a station on the left.
    const QPointF station(w * 0.16, h * 0.62);
    for (int i = 0; i < 48; ++i) {
        const qreal a = (-70 + i * 3.0) * M_PI / 180.0;
        const QPointF end = station + QPointF(std::cos(a), std::sin(a)) * w;
        QColor ray = accent;
        ray.setAlpha(28 + (i % 4) * 10);
        p.setPen(QPen(ray, 1.2));
        p.drawLine(station, end);
    }
    // The points those rays met: a façade and the ground.
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 30; ++i) {
        for (int j = 0; j < 12; ++j) {
            QColor dot = accent.darker(100 + j * 5);
            dot.setAlpha(150);
            p.setBrush(dot);
            p.drawEllipse(QPointF(w * 0.62 + i * 5.5, h * 0.18 + j * 9.5 + (i % 2) * 2), 1.6, 1.6);
        }
    }
    p.save();
    p.translate(station - QPointF(16, 16) * 2);
    p.scale(2, 2);
    logo(p);
    p.restore();

    QFont title(QStringLiteral("Open Sans"));
    title.setPixelSize(int(h * 0.12));
    title.setBold(true);
    p.setFont(title);
    p.setPen(outline);
    p.drawText(QRectF(w * 0.06, h * 0.08, w * 0.9, h * 0.2), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("Tarvenix Scan Viewer"));
    QFont subtitle(QStringLiteral("Open Sans"));
    subtitle.setPixelSize(int(h * 0.055));
    p.setFont(subtitle);
    p.setPen(outline.lighter(150));
    p.drawText(QRectF(w * 0.06, h * 0.26, w * 0.9, h * 0.1), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("Terrestrial laser scan projects"));
}

void backgroundTile(QPainter& p, const QSize& size)
{
    p.fillRect(QRect(QPoint(0, 0), size), QColor(0x8a, 0x95, 0xa1));
    p.setPen(QPen(QColor(0x80, 0x8b, 0x97), 1.0));
    for (int i = -size.width(); i < size.width(); i += 8)
        p.drawLine(QPointF(i, size.height()), QPointF(i + size.height(), 0));
}

struct Entry {
    QSize size;
    Draw draw;
    bool vector = true; // drawn in a 32-unit box and scaled to the size
};

const std::map<QString, Entry>& entries()
{
    static const std::map<QString, Entry> table = [] {
        std::map<QString, Entry> t;
        const QSize icon(32, 32);
        auto vec = [&](const char* path, Draw draw, QSize size = QSize(32, 32)) {
            t[QString::fromLatin1(path)] = Entry{size, std::move(draw), true};
        };

        vec("icons/shared/open.png", [](QPainter& p) { folder(p, true); });
        vec("icons/shared/save.png", [](QPainter& p) {
            setStroke(p, outline, 1.8, accent);
            p.drawRoundedRect(QRectF(4, 4, 24, 24), 2.5, 2.5);
            setStroke(p, outline, 1.2, paper);
            p.drawRect(QRectF(9, 4, 14, 9));
            setStroke(p, outline, 1.2, accentLight);
            p.drawRect(QRectF(8, 18, 16, 10));
            setStroke(p, outline, 1.5, outline);
            p.drawRect(QRectF(18, 6, 2.5, 5));
        });
        vec("icons/shared/pickcoordinatemode.png", [](QPainter& p) {
            crosshair(p, QPointF(14, 14), 11, outline);
            label(p, QRectF(16, 18, 16, 14), QStringLiteral("xyz"), accent, 8);
        });
        vec("icons/shared/clearpointlist.png", [](QPainter& p) {
            setStroke(p, outline, 2.0);
            for (int i = 0; i < 4; ++i) {
                p.drawPoint(QPointF(5, 7 + i * 6));
                p.drawLine(QPointF(9, 7 + i * 6), QPointF(24, 7 + i * 6));
            }
            badge(p, Badge::Cross, remove);
        });
        vec("icons/shared/clearpickedpoints.png", [](QPainter& p) {
            crosshair(p, QPointF(13, 13), 10, outline);
            badge(p, Badge::Cross, remove);
        });
        vec("icons/shared/editmode.png", [](QPainter& p) {
            setStroke(p, accent, 1.6);
            p.drawRect(QRectF(4, 4, 18, 18));
            setStroke(p, outline, 1.0, Qt::white);
            for (const QPointF& h : {QPointF(4, 4), QPointF(22, 4), QPointF(4, 22), QPointF(22, 22)})
                p.drawRect(QRectF(h - QPointF(2, 2), QSizeF(4, 4)));
            QPainterPath arrow;
            arrow.moveTo(14, 14);
            arrow.lineTo(28, 20);
            arrow.lineTo(22, 22);
            arrow.lineTo(20, 28);
            arrow.closeSubpath();
            setStroke(p, Qt::white, 1.2, outline);
            p.drawPath(arrow);
        });
        vec("icons/shared/zoom_in.png", [](QPainter& p) {
            magnifier(p);
            setStroke(p, outline, 2.2);
            p.drawLine(QPointF(9, 13), QPointF(17, 13));
            p.drawLine(QPointF(13, 9), QPointF(13, 17));
        });
        vec("icons/shared/zoom_out.png", [](QPainter& p) {
            magnifier(p);
            setStroke(p, outline, 2.2);
            p.drawLine(QPointF(9, 13), QPointF(17, 13));
        });
        vec("icons/shared/zoom_all.png", [](QPainter& p) {
            setStroke(p, accent, 2.0);
            for (int sx : {-1, 1}) {
                for (int sy : {-1, 1}) {
                    const QPointF corner(16 + sx * 12, 16 + sy * 12);
                    p.drawLine(corner, corner - QPointF(sx * 7, 0));
                    p.drawLine(corner, corner - QPointF(0, sy * 7));
                }
            }
            setStroke(p, outline, 1.6, accentLight);
            p.drawRect(QRectF(10, 10, 12, 12));
        });
        vec("icons/shared/addpolygon.png", [](QPainter& p) {
            addShape(p, [](QPainter& q) {
                q.drawPolygon(QPolygonF({QPointF(4, 10), QPointF(14, 3), QPointF(25, 8), QPointF(18, 20), QPointF(6, 22)}));
            });
        });
        vec("icons/shared/addrectangle.png", [](QPainter& p) {
            addShape(p, [](QPainter& q) { q.drawRect(QRectF(3, 5, 22, 15)); });
        });
        vec("icons/shared/addellipse.png", [](QPainter& p) {
            addShape(p, [](QPainter& q) { q.drawEllipse(QRectF(3, 4, 22, 16)); });
        });
        vec("icons/shared/addtext.png", [](QPainter& p) {
            label(p, QRectF(0, 0, 24, 24), QStringLiteral("A"), outline, 22);
            badge(p, Badge::Plus, add);
        });
        vec("icons/shared/distance3d.png", [](QPainter& p) { dimensioning(p, QStringLiteral("3D"), false); });
        vec("icons/shared/distancexy.png", [](QPainter& p) { dimensioning(p, QStringLiteral("XY"), false); });
        vec("icons/shared/distancedz.png", [](QPainter& p) { dimensioning(p, QStringLiteral("Z"), true); });
        vec("icons/shared/distanceall.png", [](QPainter& p) {
            setStroke(p, measure, 2.0);
            p.drawLine(QPointF(4, 28), QPointF(26, 6));
            p.drawLine(QPointF(4, 28), QPointF(26, 28));
            p.drawLine(QPointF(26, 28), QPointF(26, 6));
            setStroke(p, outline, 1.0, Qt::white);
            for (const QPointF& c : {QPointF(4, 28), QPointF(26, 6), QPointF(26, 28)})
                p.drawEllipse(c, 2.2, 2.2);
        });
        vec("icons/shared/planarview_active.png", [](QPainter& p) { panorama(p, true); });
        vec("icons/shared/planarview_inactive.png", [](QPainter& p) { panorama(p, false); });
        vec("icons/shared/sphericalview_active.png", [](QPainter& p) { sphere(p, true); });
        vec("icons/shared/sphericalview_inactive.png", [](QPainter& p) { sphere(p, false); });
        vec("icons/shared/pointcloudview_active.png", [](QPainter& p) { pointCloud(p, true); });
        vec("icons/shared/pointcloudview_inactive.png", [](QPainter& p) { pointCloud(p, false); });
        vec("icons/shared/delete.png", [](QPainter& p) { badge(p, Badge::Cross, remove, QPointF(16, 16)); });
        vec("icons/shared/tvx_doc_small_lib.ico", [](QPainter& p) {
            document(p);
            p.setPen(Qt::NoPen);
            p.setBrush(accent);
            for (int i = 0; i < 4; ++i)
                for (int j = 0; j < 4; ++j)
                    p.drawEllipse(QPointF(10 + i * 3.5, 13 + j * 3.8 + (i % 2)), 1.1, 1.1);
        });
        t[QStringLiteral("icons/shared/bgbrush.png")] = Entry{QSize(64, 64), [](QPainter& p) { backgroundTile(p, QSize(64, 64)); }, false};
        t[QStringLiteral("icons/viewer/splash_viewer.png")] = Entry{QSize(560, 320), [](QPainter& p) { splash(p, QSize(560, 320)); }, false};
        t[QStringLiteral("tvxcore/resources/cursor_cross.png")] = Entry{icon, cursorCross, false};
        t[QStringLiteral("tvxcore/resources/cursor_steelmodul.png")] = Entry{icon, cursorSteelModule, false};
        vec("tvxcore/resources/tvx32.png", logo);
        vec("tvxcore/resources/addScans.png", [](QPainter& p) {
            document(p, QRectF(4, 2, 18, 24));
            badge(p, Badge::Plus, add);
        });
        vec("tvxcore/resources/addFolder.png", [](QPainter& p) {
            folder(p);
            badge(p, Badge::Plus, add);
        });
        vec("tvxcore/resources/renameFolder.png", [](QPainter& p) {
            folder(p);
            // A pencil across the folder's front.
            p.save();
            p.translate(22, 18);
            p.rotate(-45);
            setStroke(p, outline, 1.2, measure);
            p.drawRect(QRectF(-9, -2.5, 14, 5));
            setStroke(p, outline, 1.2, paper);
            p.drawPolygon(QPolygonF({QPointF(5, -2.5), QPointF(9, 0), QPointF(5, 2.5)}));
            p.restore();
        });
        vec("tvxcore/resources/delete.png", [](QPainter& p) { badge(p, Badge::Cross, remove, QPointF(16, 16)); });
        return t;
    }();
    return table;
}

} // namespace

QStringList IconPainter::resourcePaths()
{
    QStringList paths;
    for (const auto& entry : entries())
        paths << entry.first;
    return paths;
}

QImage IconPainter::paint(const QString& resourcePath)
{
    const auto it = entries().find(resourcePath);
    if (it == entries().end())
        return {};
    const Entry& entry = it->second;
    QImage image(entry.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    // Cursors stay crisp: they are drawn pixel-exact around their hot spot.
    const bool cursor = resourcePath.contains(QStringLiteral("cursor_"));
    p.setRenderHint(QPainter::Antialiasing, !cursor);
    p.setRenderHint(QPainter::TextAntialiasing);
    if (entry.vector)
        p.scale(entry.size.width() / 32.0, entry.size.height() / 32.0);
    entry.draw(p);
    p.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}
