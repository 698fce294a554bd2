#include "platform/ini_file.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <array>

namespace padral {

namespace {

constexpr qsizetype LargoMaximo = 1023;

// What windows-1252 has in 0x80 to 0x9F; everything else is as in Latin 1.
constexpr std::array<char16_t, 32> SignosAnsi{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString deAnsi(const QByteArray& bytes) {
    QString texto = QString::fromLatin1(bytes);
    for (QChar& letra : texto) {
        const auto codigo = letra.unicode();
        if (codigo >= 0x80 && codigo < 0xA0) letra = QChar(SignosAnsi[codigo - 0x80U]);
    }
    return texto;
}

QString leerTexto(const QString& ruta) {
    QFile fichero(ruta);
    if (!QFileInfo(fichero).isFile() || !fichero.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = fichero.readAll();
    // Stateless: half a character at the end is an error and not the beginning of more.
    QStringDecoder decodificador(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString texto = decodificador(bytes);
    return decodificador.hasError() ? deAnsi(bytes) : texto;
}

bool mismoNombre(QStringView uno, QStringView otro) {
    return uno.trimmed().compare(otro.trimmed(), Qt::CaseInsensitive) == 0;
}

QStringView sinComillas(QStringView valor) {
    const bool entrecomillado = valor.size() >= 2 && valor.front() == valor.back() &&
                                (valor.front() == u'"' || valor.front() == u'\'');
    return entrecomillado ? valor.sliced(1, valor.size() - 2) : valor;
}

QString cortado(QStringView valor) {
    if (valor.size() <= LargoMaximo) return valor.toString();
    // A character of two units stays whole or goes.
    const bool partido = valor[LargoMaximo - 1].isHighSurrogate();
    return valor.first(partido ? LargoMaximo - 1 : LargoMaximo).toString();
}

// Whether the line names a section, and then which; without its bracket it names none.
bool esCabecera(QStringView linea, QStringView& nombre) {
    const qsizetype fin = linea.indexOf(u']');
    if (!linea.startsWith(u'[') || fin < 0) return false;
    nombre = linea.sliced(1, fin - 1);
    return true;
}

}  // namespace

QString LeerValorIni(const QString& seccion, const QString& clave, const QString& fichero) {
    QString texto = leerTexto(fichero);
    texto.replace(u'\r', u'\n');
    bool dentro = false;
    for (const QStringView entera : QStringView(texto).split(u'\n')) {
        const QStringView linea = entera.trimmed();
        QStringView nombre;
        if (linea.startsWith(u';')) continue;
        if (esCabecera(linea, nombre)) {
            if (dentro) return {};  // a second section of that name is not looked at
            dentro = mismoNombre(nombre, seccion);
            continue;
        }
        const qsizetype igual = linea.indexOf(u'=');
        if (dentro && igual >= 0 && mismoNombre(linea.first(igual), clave))
            return cortado(sinComillas(linea.sliced(igual + 1).trimmed()));
    }
    return {};
}

}  // namespace padral
