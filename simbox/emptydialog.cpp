// SPDX-License-Identifier: MIT
// The least that a program on this toolkit can be: what startup.py measures the tool against.
#include <QApplication>
#include <QDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QVBoxLayout>

int main(int argc, char **argv)
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication app(argc, argv);
    const int id =
        QFontDatabase::addApplicationFont(QStringLiteral("/usr/share/fonts/ttf/msyh.ttf"));
    QApplication::setFont(QFont(QFontDatabase::applicationFontFamilies(id).value(0), 9));
    QDialog dialog;
    dialog.resize(286, 323);
    QVBoxLayout layout(&dialog);
    layout.addWidget(new QLabel(QStringLiteral("An empty dialog"), &dialog), 0, Qt::AlignCenter);
    dialog.show();
    return QApplication::exec();
}
