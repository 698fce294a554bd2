#include "printing/ui/fonts.h"

#include <QFontDatabase>
#include <QStringList>

namespace padral {
namespace {

struct Sustituta {
    const char16_t* familia;
    const char16_t* libre;
};
constexpr Sustituta sustitutas[] = {
    {u"times new roman", u"Liberation Serif"},
    {u"Arial Narrow", u"Liberation Sans Narrow"},
};

}  // namespace

QString FamiliaInstalada(const QString& familia) {
    if (QFontDatabase::families().contains(familia, Qt::CaseInsensitive)) return familia;
    for (const auto& s : sustitutas)
        if (familia.compare(QStringView(s.familia), Qt::CaseInsensitive) == 0)
            return QString::fromUtf16(s.libre);
    return familia;
}

}  // namespace padral
