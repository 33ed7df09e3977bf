#include "scanexport.h"
#include "testregistry.h"

#include "fileio/crc32c.h"
#include "fileio/e57bitpackdecoder.h"

#include <QTest>

#include <random>

using namespace TVX::CORE;
using namespace TVX::TEST;

// The two lowest layers of E57 reading: the page checksum and the bit-pack codec.
class E57CodecTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Published CRC-32C check values (the "123456789" check value and the iSCSI test patterns).
    void crc32c_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<quint32>("expected");
        QTest::newRow("empty") << QByteArray() << 0u;
        QTest::newRow("check value") << QByteArray("123456789") << 0xE3069283u;
        QTest::newRow("32 zeros") << QByteArray(32, '\0') << 0x8A9136AAu;
    }
    void crc32c()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(quint32, expected);
        QCOMPARE(TVX::CORE::crc32c(bytes.constData(), std::size_t(bytes.size())), expected);
        // In two pieces of odd sizes, as page blocks are checked.
        const std::size_t half = std::size_t(bytes.size()) / 2 + 1;
        if (std::size_t(bytes.size()) >= half) {
            const quint32 first = TVX::CORE::crc32c(bytes.constData(), half);
            QCOMPARE(TVX::CORE::crc32c(bytes.constData() + half, std::size_t(bytes.size()) - half, first), expected);
        }
    }

    // Every width from 1 to 64 bits: values packed by the tests' writer come back, with the bytes
    // handed over in uneven pieces as packets cut a bytestream.
    void integerWidths()
    {
        std::mt19937_64 random(42);
        for (int bits = 1; bits <= 64; ++bits) {
            const qint64 minimum = bits == 64 ? std::numeric_limits<qint64>::min() : -(qint64(1) << (bits - 1)) + 3;
            const quint64 range = bits == 64 ? ~quint64(0) : (quint64(1) << bits) - 1;
            const qint64 maximum = qint64(quint64(minimum) + range);
            E57BitPackDecoder decoder = E57BitPackDecoder::forInteger(minimum, maximum);
            QCOMPARE(decoder.bitsPerValue(), bits);
            std::vector<quint64> stored(257);
            for (quint64& value : stored)
                value = random() & range;
            stored.back() = range; // the largest value too
            BitPacker packer;
            for (quint64 value : stored)
                packer.put(value, bits);
            const QByteArray bytes = packer.take(true);
            for (qsizetype at = 0, piece = 1; at < bytes.size(); at += piece, piece = piece * 3 % 17 + 1)
                decoder.append(bytes.constData() + at, std::size_t(std::min(piece, bytes.size() - at)));
            QVERIFY(decoder.available() >= stored.size());
            std::vector<double> values(stored.size());
            decoder.decode(values.data(), values.size());
            for (std::size_t i = 0; i < stored.size(); ++i) {
                const qint64 expected = qint64(quint64(minimum) + stored[i]);
                // Compared as doubles: beyond 53 bits only the nearest double is promised.
                QVERIFY2(values[i] == double(expected), qPrintable(QStringLiteral("%1 bits, value %2").arg(bits).arg(i)));
            }
        }
    }

    // (minimum + stored) × scale + offset; a field whose minimum equals its maximum takes no bits.
    void scaledIntegers_data()
    {
        QTest::addColumn<qint64>("minimum");
        QTest::addColumn<qint64>("maximum");
        QTest::addColumn<double>("scale");
        QTest::addColumn<double>("offset");
        QTest::addColumn<qint64>("raw");
        QTest::newRow("0.1 mm, negative") << qint64(-1000000) << qint64(1000000) << 0.0001 << 0.0 << qint64(-123456);
        QTest::newRow("offset") << qint64(0) << qint64(4095) << 0.5 << 100.0 << qint64(4095);
        QTest::newRow("constant") << qint64(7) << qint64(7) << 2.0 << 1.0 << qint64(7);
    }
    void scaledIntegers()
    {
        QFETCH(qint64, minimum);
        QFETCH(qint64, maximum);
        QFETCH(double, scale);
        QFETCH(double, offset);
        QFETCH(qint64, raw);
        E57BitPackDecoder decoder = E57BitPackDecoder::forInteger(minimum, maximum, scale, offset);
        BitPacker packer;
        const int bits = bitsFor(quint64(maximum - minimum));
        packer.put(quint64(raw - minimum), bits);
        packer.put(0, bits);
        const QByteArray bytes = packer.take(true);
        decoder.append(bytes.constData(), std::size_t(bytes.size()));
        double values[2];
        decoder.decode(values, 2);
        QCOMPARE(values[0], double(raw) * scale + offset);
        QCOMPARE(values[1], double(minimum) * scale + offset);
    }

    void floats()
    {
        BitPacker packer;
        packer.putDouble(-1234.5678901234);
        packer.putDouble(1e-300);
        const QByteArray doubles = packer.take(true);
        E57BitPackDecoder wide = E57BitPackDecoder::forFloat(false);
        wide.append(doubles.constData(), 5); // a value split over two packets
        QCOMPARE(wide.available(), quint64(0));
        wide.append(doubles.constData() + 5, std::size_t(doubles.size() - 5));
        QCOMPARE(wide.available(), quint64(2));
        double values[2];
        wide.decode(values, 2);
        QCOMPARE(values[0], -1234.5678901234);
        QCOMPARE(values[1], 1e-300);

        packer.putFloat(0.25f);
        const QByteArray singles = packer.take(true);
        E57BitPackDecoder narrow = E57BitPackDecoder::forFloat(true);
        narrow.append(singles.constData(), std::size_t(singles.size()));
        narrow.decode(values, 1);
        QCOMPARE(values[0], 0.25);
    }
};

TVX_TEST(E57CodecTest)
#include "e57codectest.moc"
