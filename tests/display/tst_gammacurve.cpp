// SPDX-License-Identifier: MIT
// The gamma curve against tables that were derived apart from it, in another language: arctangent
// and power with 400 bits, each result then rounded to single or double precision as the curve's
// definition names it, the integer steps in 32 bits. In the rows of positive gammas no value comes
// closer than 900 units in its last place to where the rounding turns. The row -0.25 shows every
// last bit instead: its values are too large to be rounded away.
#include "display/gammacurve.h"

#include <QtTest>

#include <cstring>
#include <limits>

using Limits = std::numeric_limits<float>;

class TestGammaCurve : public QObject
{
    Q_OBJECT

private slots:
    void curve_data();
    void curve();
    void anyFloat();
};

void TestGammaCurve::curve_data()
{
    QTest::addColumn<float>("gamma");
    QTest::addColumn<QString>("constk");
    QTest::addColumn<QString>("slopek");
    const auto row = [](const char *name, float gamma, const char *constk, const char *slopek) {
        QTest::newRow(name) << gamma << QString::fromLatin1(constk) << QString::fromLatin1(slopek);
    };

    row("1.0", 1.0F, "0 0 0 510 509 7 29 53 76 99 122 144 166 188 211 233",
        "0 0 0 8 10 22 24 23 23 23 22 22 22 23 22 21");
    row("2.2", 2.2F, "0 511 511 509 501 29 78 113 139 160 177 193 207 220 233 244",
        "0 16 16 24 40 49 35 26 21 17 16 14 13 13 11 11");
    row("0.45", 0.45F, "0 0 0 0 0 0 3 10 20 34 52 74 101 133 169 209",
        "0 0 0 0 0 3 7 10 14 18 22 27 32 36 40 45");
    row("1.8", 1.8F, "0 511 0 510 502 22 65 99 124 146 165 183 199 214 228 242",
        "0 16 8 16 32 43 34 25 22 19 18 16 15 14 14 13");
    row("-0.25, saturates and wraps", -0.25F,
        "1 62 264 242 168 340 299 267 118 205 304 82 238 282 12 360",
        "-32 1593408528 -118364736 -291103208 -20366676 2145879511 2147309024 2147447659 "
        "2147472983 2147479651 2147481890 2147482780 2147483180 2147483378 2147483484 2147483546");

    const char *const flat = "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0";
    row("0", 0.0F, flat, flat);
    row("NaN", Limits::quiet_NaN(), flat, flat);

    const char *const full = "508 1 510 508 496 88 177 213 229 238 243 247 249 251 253 254";
    const char *const fullSlopes = "128 48 72 80 104 89 36 16 9 5 4 2 2 2 1 1";
    row("infinite", Limits::infinity(), full, fullSlopes);

    const char *const saturated = "1 511 511 511 511 511 511 511 511 511 511 511 511 511 511 511";
    const char *const saturatedSlopes = "-32 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0";
    row("-0", -0.0F, saturated, saturatedSlopes);
}

void TestGammaCurve::curve()
{
    QFETCH(float, gamma);
    const GammaCurve result = gammaCurve(gamma);
    const auto text = [](const std::int32_t(&entries)[GAMMA_SEGMENTS]) {
        QStringList list;
        for (int entry : entries)
            list.append(QString::number(entry));
        return list.join(QLatin1Char(' '));
    };
    QCOMPARE(result.enable, 1);
    QTEST(text(result.constk), "constk");
    QTEST(text(result.slopek), "slopek");
}

// For the sanitizers, over the whole range of bit patterns.
void TestGammaCurve::anyFloat()
{
    constexpr quint32 stride = 65537;
    qint32 offsetBits = 0;
    for (quint32 bits = 0; bits < std::numeric_limits<quint32>::max() - stride; bits += stride) {
        float gamma = 0;
        std::memcpy(&gamma, &bits, sizeof gamma);
        const GammaCurve result = gammaCurve(gamma);
        for (qint32 offset : result.constk)
            offsetBits |= offset;
    }
    QCOMPARE(offsetBits, 0x1ff);
}

QTEST_GUILESS_MAIN(TestGammaCurve)
#include "tst_gammacurve.moc"
