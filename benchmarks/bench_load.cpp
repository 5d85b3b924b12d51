/// Loads the library into a program that has Qt and an application already, and prints the
/// processor time in seconds that it took, the registration of the images included.

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <ctime>
#include <dlfcn.h>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 2)
        return EXIT_FAILURE;
    const std::clock_t start = std::clock();
    const void *library = dlopen(argv[1], RTLD_NOW);
    const std::clock_t end = std::clock();
    if (!library
        || !QFile::exists(":/Resource/Images/globalResource/checkbox/checkbox_normal.png")) {
        std::fprintf(stderr, "%s\n", library ? "the images are missing" : dlerror());
        return EXIT_FAILURE;
    }
    std::printf("%.6f\n", double(end - start) / CLOCKS_PER_SEC);
    return EXIT_SUCCESS;
}
