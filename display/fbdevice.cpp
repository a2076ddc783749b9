// SPDX-License-Identifier: MIT
#include "display/fbdevice.h"

#define OX_LOG_FILE "fbdevice"
#include "libOxUtils/utils/log.h"

#include "display/gammacurve.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/fb.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

// From the i.MX driver's mxcfb.h, which is not among the kernel's common headers.
constexpr unsigned long MXCFB_SET_GAMMA = _IOW('F', 0x28, GammaCurve);
static_assert(MXCFB_SET_GAMMA == 0x40844628, "the driver's request number");

// What failed, followed by the system's text for the error number.
QString withReason(const QString &failure, int error)
{
    return failure + QLatin1Char(' ') + QString::fromLocal8Bit(std::strerror(error));
}

} // namespace

FbDevice *FbDevice::s_instance = nullptr;

FbDevice *FbDevice::Instance()
{
    if (!s_instance)
        s_instance = new FbDevice;
    return s_instance;
}

void FbDevice::ReleaseInstance()
{
    delete s_instance;
    s_instance = nullptr;
}

FbDevice::~FbDevice()
{
    // Nobody is left to be told; the log is.
    static_cast<void>(CloseDevice());
}

bool FbDevice::OpenDevice(const QString &name)
{
    if (m_fd >= 0)
        return true;

    m_name = name;
    m_fd = ::open(m_name.toUtf8().constData(), O_RDWR);
    if (m_fd < 0) {
        oxlog::critical(OX_LOG_HERE,
                        QStringLiteral("Error opening %1. ").arg(oxlog::quoted(m_name)));
        return false;
    }
    return true;
}

bool FbDevice::CloseDevice()
{
    if (m_fd < 0)
        return true;

    if (::close(m_fd) < 0) {
        const int error = errno;
        oxlog::critical(OX_LOG_HERE, withReason(QStringLiteral("Close file error."), error));
        return false;
    }
    m_fd = -1;
    return true;
}

bool FbDevice::SetGamma(float gamma)
{
    const GammaCurve curve = gammaCurve(gamma);
    if (::ioctl(m_fd, MXCFB_SET_GAMMA, &curve) < 0) {
        const int error = errno;
        oxlog::critical(OX_LOG_HERE,
                        withReason(QStringLiteral("Ioctl MXCFB_SET_GAMMA fail!"), error));
        return false;
    }
    return true;
}

bool FbDevice::GetVarScreenInfo()
{
    fb_var_screeninfo info = {};
    if (::ioctl(m_fd, FBIOGET_VSCREENINFO, &info) < 0) {
        const int error = errno;
        oxlog::critical(OX_LOG_HERE,
                        withReason(QStringLiteral("Ioctl FBIOGET_VSCREENINFO fail!"), error));
        return false;
    }

    const oxlog::Site site = OX_LOG_HERE;
    const auto write = [&site](const char *name, __u32 value) {
        // The log shows them with a sign.
        const QString number = QString::number(static_cast<qint32>(value));
        oxlog::debug(site, QLatin1String(name) + QLatin1Char(' ') + number);
    };
    write("xres", info.xres);
    write("yres", info.yres);
    write("xres_virturl", info.xres_virtual); // so spelt: docs/compatibility.md
    write("yres_virtual", info.yres_virtual);
    write("xoffset", info.xoffset);
    write("yoffset", info.yoffset);
    write("bits_per_pixel", info.bits_per_pixel);
    write("grayscale", info.grayscale);
    return true;
}
