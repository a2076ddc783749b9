// SPDX-License-Identifier: MIT
// The gamma curve against tables that were derived apart from it, in another language: arctangent
// and power with 400 bits, each result then rounded to single or double precision as the curve's
// definition names it, the integer steps in 32 bits. For positive gammas no value comes closer than
// 900 units in its last place to where the rounding turns.
#include "display/gammacurve.h"

#include <QtTest>

#include <tuple>

class TestGammaCurve : public QObject
{
    Q_OBJECT

private slots:
    void curve();
};

void TestGammaCurve::curve()
{
    const std::tuple<float, const char *, const char *> rows[] = {
        {1.0F, "0 0 0 510 509 7 29 53 76 99 122 144 166 188 211 233 ",
         "0 0 0 8 10 22 24 23 23 23 22 22 22 23 22 21 "},
        {2.2F, "0 511 511 509 501 29 78 113 139 160 177 193 207 220 233 244 ",
         "0 16 16 24 40 49 35 26 21 17 16 14 13 13 11 11 "},
        {0.45F, "0 0 0 0 0 0 3 10 20 34 52 74 101 133 169 209 ",
         "0 0 0 0 0 3 7 10 14 18 22 27 32 36 40 45 "},
        // Too large to be rounded away, so it shows every last bit; it saturates and wraps.
        {-0.25F, "1 62 264 242 168 340 299 267 118 205 304 82 238 282 12 360 ",
         "-32 1593408528 -118364736 -291103208 -20366676 2145879511 2147309024 2147447659 "
         "2147472983 2147479651 2147481890 2147482780 2147483180 2147483378 2147483484 "
         "2147483546 "},
        // What is no number is applied as 0.
        {0.0F, "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 ", "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 "},
    };
    for (const auto &[gamma, constk, slopek] : rows) {
        const GammaCurve result = gammaCurve(gamma);
        QByteArray constants;
        QByteArray slopes;
        for (int i = 0; i < GAMMA_SEGMENTS; ++i) {
            constants += QByteArray::number(result.constk[i]) + ' ';
            slopes += QByteArray::number(result.slopek[i]) + ' ';
        }
        QCOMPARE(result.enable, 1);
        QCOMPARE(constants, QByteArray(constk));
        QCOMPARE(slopes, QByteArray(slopek));
    }
}

QTEST_GUILESS_MAIN(TestGammaCurve)
#include "tst_gammacurve.moc"
