// SPDX-License-Identifier: MIT
// The gamma curve against tables that were derived apart from it, in another language: arctangent
// and power with 400 bits, each result then rounded to single or double precision as the curve's
// definition names it, the integer steps in 32 bits. In the rows of positive gammas no value comes
// closer than 900 units in its last place to where the rounding turns. The row -0.25 shows every
// last bit instead: its values are too large to be rounded away.
#include "display/gammacurve.h"

#include <QtTest>

#include <limits>

class TestGammaCurve : public QObject
{
    Q_OBJECT

private slots:
    void curve_data();
    void curve();
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
    row("-0.25, saturates and wraps", -0.25F,
        "1 62 264 242 168 340 299 267 118 205 304 82 238 282 12 360",
        "-32 1593408528 -118364736 -291103208 -20366676 2145879511 2147309024 2147447659 "
        "2147472983 2147479651 2147481890 2147482780 2147483180 2147483378 2147483484 2147483546");

    const char *const flat = "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0";
    row("0", 0.0F, flat, flat);
    row("NaN", std::numeric_limits<float>::quiet_NaN(), flat, flat);
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

QTEST_GUILESS_MAIN(TestGammaCurve)
#include "tst_gammacurve.moc"
