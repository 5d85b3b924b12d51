// Loads a form with one widget of the library by the plugins in a folder, and prints the widget.
#include <QApplication>
#include <QBuffer>
#include <QUiLoader>
#include <QWidget>

#include <cstdio>
#include <memory>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(application.arguments().value(1));
    QByteArray form(
        "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
        "<widget class=\"CheckBoxEx\" name=\"box\"><property name=\"text\">"
        "<string>Mirror the wall</string></property></widget></widget></ui>");
    QBuffer buffer(&form);
    const std::unique_ptr<QWidget> loaded(loader.load(&buffer));
    const QWidget *box = loaded ? loaded->findChild<QWidget *>("box") : nullptr;
    if (!box) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return 1;
    }
    std::printf("%s %s\n", box->metaObject()->className(),
                qPrintable(box->property("text").toString()));
    return 0;
}
