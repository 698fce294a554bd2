// Makes the two database files that the program starts with.

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>
#include <exception>

#include "make_catalogue/load_catalogue.h"
#include "store/new_files.h"

namespace {

int usage() {
    std::fputs(
        "usage: make_catalogue CSV_FOLDER CATALOGUE_FILE\n"
        "       make_catalogue --new-declarations DECLARATIONS_FILE\n",
        stderr);
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) return usage();
    try {
        if (arguments[1] == QStringLiteral("--new-declarations"))
            padral::store::CreateDeclarationsFile(arguments[2]);
        else
            padral::catalogue::WriteCatalogue(arguments[1], arguments[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_catalogue: %s\n", error.what());
        return 1;
    }
    return 0;
}
