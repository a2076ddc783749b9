// SPDX-License-Identifier: MIT
#include "app/shortenedmessage.h"

#include <QtTest>

class TestShortenedMessage : public QObject
{
    Q_OBJECT

private slots:
    void longMessages();
};

void TestShortenedMessage::longMessages()
{
    const QString fits = QStringLiteral("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n");
    QCOMPARE(shortenedMessage(fits), fits);
    QCOMPARE(shortenedMessage(QString()), QString());
    const QString ellipsis = QChar(0x2026);
    QCOMPARE(shortenedMessage(fits + QStringLiteral("11")), fits.trimmed() + ellipsis);
    QCOMPARE(shortenedMessage(QString(2000000, QLatin1Char('x'))).size(), 1001);
}

QTEST_APPLESS_MAIN(TestShortenedMessage)
#include "tst_shortenedmessage.moc"
