// SPDX-License-Identifier: MIT
#include "app/startup.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QOpenGLContext>

#include <cstring>

namespace {

constexpr char GL_INTEGRATION_VARIABLE[] = "QT_XCB_GL_INTEGRATION";

} // namespace

bool isVersionQuery(int argc, const char *const argv[])
{
    return argc == 2 && (std::strcmp(argv[1], "-v") == 0 || std::strcmp(argv[1], "--version") == 0);
}

void installApplicationFont(const QString &fontFile, int pointSize)
{
    const int id = QFontDatabase::addApplicationFont(fontFile);
    if (id == -1)
        return;
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty())
        return;
    QFont font(families.first());
    font.setPointSize(pointSize);
    QApplication::setFont(font);
}

void keepFurtherPluginsOut()
{
    QCoreApplication::setLibraryPaths({});
}

GlIntegrationSetting::GlIntegrationSetting()
    : m_isOurs(!qEnvironmentVariableIsSet(GL_INTEGRATION_VARIABLE))
{
    if (m_isOurs)
        qputenv(GL_INTEGRATION_VARIABLE, "none");
}

void GlIntegrationSetting::settle()
{
    if (!m_isOurs)
        return;
#ifndef QT_NO_OPENGL
    // The toolkit reads the variable when it first needs the answer, and any question will do.
    QOpenGLContext::supportsThreadedOpenGL();
#endif
    qunsetenv(GL_INTEGRATION_VARIABLE);
}
