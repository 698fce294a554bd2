#include "core/field_rules.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace padral {

const QString AlfabetoTexto = QStringLiteral(
    "0123456789"
    "ABCDEFGHIJKLMNÑOPQRSTUVWXYZ"
    " !$%&()*+,-./:;<=>?\\_ºª¿¡çÇ@");

int FiltrarTecla(int tecla) {
    if (tecla == TeclaRetroceso) return tecla;
    if (tecla <= 0 || tecla > 0xFFFF) return 0;
    const QChar mayuscula = QChar(static_cast<char16_t>(tecla)).toUpper();
    return AlfabetoTexto.contains(mayuscula) ? mayuscula.unicode() : 0;
}

int FiltrarTeclaFecha(int tecla) {
    const bool vale = (tecla >= u'0' && tecla <= u'9') || tecla == TeclaRetroceso || tecla == u'/';
    return vale ? tecla : 0;
}

qint32 ValorNumerico(QStringView texto) {
    qint64 valor = 0;
    bool negativo = false;
    bool empezado = false;
    for (const QChar c : texto) {
        if (c.isSpace()) continue;
        if (!empezado && (c == u'-' || c == u'+')) {
            negativo = c == u'-';
            empezado = true;
            continue;
        }
        if (c < u'0' || c > u'9') break;
        empezado = true;
        valor =
            std::min<qint64>(valor * 10 + (c.unicode() - u'0'), std::numeric_limits<qint32>::max());
    }
    return static_cast<qint32>(negativo ? -valor : valor);
}

QString DirectorioPadre(const QString& ruta) {
    const auto ultimo = std::max(ruta.lastIndexOf(u'/'), ruta.lastIndexOf(u'\\'));
    return ultimo < 0 ? QString() : ruta.left(ultimo);
}

MarcaPareja PresentarParejaSiNo(const QString& valor, bool hayNo, QString valorSi,
                                QString valorNo) {
    if (valorSi.trimmed().isEmpty()) {
        valorSi = QStringLiteral("S");
        valorNo = QStringLiteral("N");
    }
    if (valor == valorSi) return MarcaPareja::Si;
    if (hayNo && valor == valorNo) return MarcaPareja::No;
    return MarcaPareja::Ninguna;
}

namespace {

double numeroDe(const QString& texto) {
    bool esNumero = false;
    const double numero = texto.trimmed().replace(u',', u'.').toDouble(&esNumero);
    return esNumero && std::isfinite(numero) ? numero : 0;
}

bool soloCeros(const QString& cifras) {
    return std::all_of(cifras.begin(), cifras.end(),
                       [](QChar c) { return c == u'0' || c == u'.'; });
}

}  // namespace

QString ValorFormateado(const QString& valor, const QString& formato) {
    double numero = numeroDe(valor);
    const auto punto = formato.indexOf(u'.');
    if (punto < 0) numero = std::trunc(numero);
    const auto decimales = punto < 0 ? 0 : static_cast<int>(formato.size() - punto - 1);
    const QString cifras = QString::number(std::abs(numero), 'f', decimales);
    const QString signo = numero < 0 && !soloCeros(cifras) ? QStringLiteral("-") : QString();
    const auto minimo = formato.left(punto < 0 ? formato.size() : punto).count(u'0');
    QString entera = cifras.section(u'.', 0, 0);
    if (entera == QStringLiteral("0")) entera.clear();
    entera = signo + entera.rightJustified(minimo, u'0');
    return punto < 0 ? entera : entera + u',' + cifras.right(decimales);
}

}  // namespace padral
