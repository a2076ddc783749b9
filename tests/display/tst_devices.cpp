// SPDX-License-Identifier: MIT
#include "display/fbdevice.h"
#include "display/i2cdevice.h"

#include "tests/support/logcapture.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

class TestDevices : public QObject
{
    Q_OBJECT

    // A file that holds "ab".
    QString newFile(const char *name) const
    {
        QFile file(m_directory.filePath(QLatin1String(name)));
        file.open(QIODevice::WriteOnly);
        file.write("ab");
        return file.fileName();
    }

    const QTemporaryDir m_directory;
    const QString m_missing = QStringLiteral("/nowhere/%1");

private slots:
    void baseDevice();
    void fbDeviceFailures();
};

void TestDevices::baseDevice()
{
    const LogCapture log;
    I2CDevice device;
    QVERIFY(device.CloseDevice());
    QVERIFY(!device.OpenDevice(m_missing));
    QCOMPARE(device.GetErrorString(), QStringLiteral("Error opening /nowhere/%1. "));
    QCOMPARE(log.messages().last().function,
             QStringLiteral("virtual bool BaseDevice::OpenDevice(const QString&)"));

    QFile file(newFile("first"));
    QVERIFY(device.OpenDevice(file.fileName()));
    QVERIFY(device.OpenDevice(m_missing)); // keeps the first
    QVERIFY(device.WriteString(QStringLiteral("1")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("1b"));

    const int descriptor = device.Descriptor();
    ::close(descriptor);
    QVERIFY(!device.CloseDevice());
    QCOMPARE(device.Descriptor(), descriptor);
    QCOMPARE(device.GetErrorString(), QStringLiteral("Close file error. Errno is: 9"));
    QCOMPARE(log.texts(QStringLiteral("basedevice")),
             QStringList({QStringLiteral("C \"Error opening /nowhere/%1. \""),
                          QStringLiteral("C \"Close file error. Errno is: 9\"")}));
}

void TestDevices::fbDeviceFailures()
{
    constexpr unsigned long SET_GAMMA = 0x40844628;
    if (::ioctl(-1, SET_GAMMA) == -1 && errno == ENOSYS)
        QSKIP("this machine is emulated by something that does not know the request");
    const LogCapture log;
    FbDevice *const device = FbDevice::Instance();
    QVERIFY(device->CloseDevice());
    QVERIFY(!device->OpenDevice(m_missing));
    QVERIFY(!device->SetGamma(1.0F));
    const int descriptor = ::dup(0); // the next that is free
    ::close(descriptor);
    QVERIFY(FbDevice::Instance()->OpenDevice(newFile("no framebuffer")));
    QCOMPARE(::fcntl(descriptor, F_GETFL) & O_ACCMODE, O_RDWR);
    QVERIFY(device->OpenDevice(m_missing));
    QVERIFY(!device->GetVarScreenInfo());
    ::close(descriptor);
    QVERIFY(!device->CloseDevice());
    FbDevice::ReleaseInstance(); // tries again
    QCOMPARE(log.texts(QStringLiteral("fbdevice")).join(QLatin1Char('\n')),
             QStringLiteral("C Error opening \"/nowhere/%1\". \n"
                            "C Ioctl MXCFB_SET_GAMMA fail! Bad file descriptor\n"
                            "C Ioctl FBIOGET_VSCREENINFO fail! Inappropriate ioctl for device\n"
                            "C Close file error. Bad file descriptor\n"
                            "C Close file error. Bad file descriptor"));
}

QTEST_GUILESS_MAIN(TestDevices)
#include "tst_devices.moc"
