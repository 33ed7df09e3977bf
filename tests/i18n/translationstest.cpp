#include "testregistry.h"

#include <QFile>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

namespace {

struct Message {
    QString context;
    QString source;
    QString comment;
    QString translation;
    bool finished = true;
};

QList<Message> readLinguistSource(const QString& path)
{
    QList<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (xml.isEndElement()) {
            if (xml.name() == QLatin1String("message"))
                messages << message;
            continue;
        }
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            message = Message{context, {}, {}, {}, true};
        } else if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.finished = xml.attributes().value(QLatin1String("type")).isEmpty();
            message.translation = xml.readElementText();
        }
    }
    return messages;
}

const QStringList locales{QStringLiteral("de_DE"), QStringLiteral("it_IT"), QStringLiteral("es_ES"),
                          QStringLiteral("fr_FR")};

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogueIsCompleteAndCompiled_data()
    {
        QTest::addColumn<QString>("locale");
        for (const QString& locale : locales)
            QTest::newRow(qPrintable(locale)) << locale;
    }

    void catalogueIsCompleteAndCompiled()
    {
        QFETCH(QString, locale);
        const QList<Message> messages =
            readLinguistSource(QStringLiteral(TVX_SOURCE_DIR "/i18n/scanviewer_%1.ts").arg(locale));
        QVERIFY(!messages.isEmpty());

        // Start-up loads the compiled catalogue by this relative name from the executable's folder.
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral("scanviewer_") + locale, QStringLiteral(TVX_BIN_DIR "/i18n")));
        for (const Message& m : messages) {
            QVERIFY2(m.finished && !m.translation.trimmed().isEmpty(), qPrintable(m.context + ": " + m.source));
            QCOMPARE(translator.translate(m.context.toUtf8().constData(), m.source.toUtf8().constData(),
                                          m.comment.isEmpty() ? nullptr : m.comment.toUtf8().constData()),
                     m.translation);
            // Place markers survive translation, or the filled-in text would lose its values.
            for (int n = 1; n <= 9; ++n) {
                const QString marker = QStringLiteral("%%1").arg(n);
                QCOMPARE(m.translation.count(marker), m.source.count(marker));
            }
        }
    }

    void everyLanguageHasTheSameTexts()
    {
        auto keys = [](const QString& locale) {
            QStringList k;
            for (const Message& m :
                 readLinguistSource(QStringLiteral(TVX_SOURCE_DIR "/i18n/scanviewer_%1.ts").arg(locale)))
                k << m.context + QChar(0) + m.source + QChar(0) + m.comment;
            k.sort();
            return k;
        };
        const QStringList reference = keys(locales.first());
        for (const QString& locale : locales)
            QCOMPARE(keys(locale), reference);
    }

    void toolkitCataloguesAreCopied_data()
    {
        catalogueIsCompleteAndCompiled_data();
    }

    void toolkitCataloguesAreCopied()
    {
        QFETCH(QString, locale);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral("qt_") + locale, QStringLiteral(TVX_BIN_DIR "/i18n")));
        // The catalogue only lists its modules; the base module must have come along with it.
        QVERIFY(!translator.translate("QPlatformTheme", "Cancel").isEmpty());
    }
};

TVX_TEST(TranslationsTest)

#include "translationstest.moc"
