// The other process of the single-instance tests.
//
//   tvxsingleapppeer ID send MESSAGE...
//       sends the messages to the owner of ID; exit 0 when all were acknowledged, 3 when no other
//       process owns ID or a send failed.
//   tvxsingleapppeer ID serve [no-activate]
//       owns ID with a minimised activation window (activated on each message unless
//       "no-activate"); prints "primary", then per message "restored TEXT" or "minimised TEXT"
//       as the window is at the moment the message is emitted; runs until killed.
//       Exit 4 at once, after printing "running", when another process owns ID.

#include "qtsingleapplication.h"

#include <QWidget>

#include <cstdio>

namespace {

void printLine(const QString& line)
{
    const QByteArray bytes = (line + QLatin1Char('\n')).toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s ID send MESSAGE... | ID serve [no-activate]\n", argv[0]);
        return 2;
    }
    const QString id = QString::fromLocal8Bit(argv[1]);
    const QByteArray mode = argv[2];
    QtSingleApplication app(id, argc, argv);
    // QApplication may have taken its own options out of argv.
    const QStringList arguments = QCoreApplication::arguments();

    if (mode == "send") {
        if (!app.isRunning())
            return 3;
        for (qsizetype i = 3; i < arguments.size(); ++i) {
            if (!app.sendMessage(arguments.at(i)))
                return 3;
        }
        return 0;
    }

    if (mode != "serve")
        return 2;
    if (app.isRunning()) {
        printLine(QStringLiteral("running"));
        return 4;
    }
    QWidget window;
    window.showMinimized();
    app.setActivationWindow(&window, !arguments.contains(QStringLiteral("no-activate")));
    QObject::connect(&app, &QtSingleApplication::messageReceived, &app, [&window](const QString& message) {
        printLine((window.isMinimized() || !window.isVisible() ? QStringLiteral("minimised ")
                                                               : QStringLiteral("restored "))
                  + message);
    });
    printLine(QStringLiteral("primary"));
    return QApplication::exec();
}
