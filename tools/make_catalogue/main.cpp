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
        "       make_catalogue --refresh CSV_FOLDER CATALOGUE_FILE\n"
        "       make_catalogue --new-declarations DECLARATIONS_FILE\n",
        stderr);
    return 2;
}

int run(const QStringList& arguments) {
    const QString first = arguments.value(0);
    if (first == QStringLiteral("--refresh") && arguments.size() == 3)
        padral::catalogue::RefreshCatalogue(arguments[1], arguments[2]);
    else if (first == QStringLiteral("--new-declarations") && arguments.size() == 2)
        padral::store::CreateDeclarationsFile(arguments[1]);
    else if (!first.startsWith(u'-') && arguments.size() == 2)
        padral::catalogue::WriteCatalogue(arguments[0], arguments[1]);
    else
        return usage();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        return run(QCoreApplication::arguments().mid(1));
    } catch (const padral::catalogue::BadRows& rows) {
        // Nothing in front of the file's name, so that editors can jump there.
        std::fprintf(stderr, "%s\n", rows.what());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_catalogue: %s\n", error.what());
    }
    return 1;
}
