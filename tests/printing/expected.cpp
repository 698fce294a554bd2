#include "expected.h"

#include <algorithm>
#include <cmath>

namespace padral::test {
namespace {

const QString estrecha = QStringLiteral("Arial Narrow");
const QString romana = QStringLiteral("times new roman");

bool Cerca(float a, float b) { return std::fabs(a - b) < 0.002F; }
bool Cerca(Punto p, float x, float y) { return Cerca(p.x, x) && Cerca(p.y, y); }
QString Cadena(const char16_t* texto) { return QString::fromUtf16(texto); }
float Arriba(float y, float cuerpo) { return y - 0.35F * 0.4F * cuerpo; }

bool Igual(const Operacion& o, const TextoEsperado& t) {
    const EstadoDibujo& e = o.estado;
    return o.tipo == Operacion::Texto && o.texto == t.texto && Cerca(o.desde, t.x, t.y) &&
           Cerca(e.cuerpo, t.cuerpo) && e.negrita == t.negrita && e.cursiva == t.cursiva &&
           e.subrayado == t.subrayado && e.fuente == t.fuente && e.primerPlano == 0x000000;
}

std::string Describir(const Operacion& o) {
    return QStringLiteral("'%1' (%2, %3)-(%4, %5) size %6 bold %7 italic %8 font %9 pen %10")
        .arg(o.texto)
        .arg(o.desde.x)
        .arg(o.desde.y)
        .arg(o.hasta.x)
        .arg(o.hasta.y)
        .arg(o.estado.cuerpo)
        .arg(o.estado.negrita)
        .arg(o.estado.cursiva)
        .arg(o.estado.fuente)
        .arg(o.estado.pluma)
        .toStdString();
}

/// Some rows leave room for an exact number of dots, so the sum is made from left to right.
QString Puntos(const FilaTexto& f) {
    if (f.hasta <= 0) return {};
    const float libre =
        X + f.hasta - 1 - (X + f.x) - AnchoFijo(Cadena(f.texto), f.cuerpo, f.negrita, f.cursiva);
    const auto caben = static_cast<qsizetype>(
        libre / AnchoFijo(QStringLiteral("."), f.cuerpo, f.negrita, f.cursiva));
    return QString(std::max(caben, qsizetype{0}), u'.');
}

bool MismoTrazo(const Operacion& o, Operacion::Tipo tipo, float origen, const FilaTrazo& f) {
    return o.tipo == tipo && Cerca(o.desde, X + f.x1, origen + f.y1) &&
           Cerca(o.hasta, X + f.x2, origen + f.y2);
}

}  // namespace

Trazado::Trazado(const Documento& documento, int pagina) {
    for (const auto& o : documento.operaciones)
        if (o.pagina == pagina) quedan_.push_back(o);
}

template <class Prueba>
bool Trazado::quitar(Prueba prueba) {
    const auto hallada = std::find_if(quedan_.begin(), quedan_.end(), prueba);
    if (hallada == quedan_.end()) return false;
    quedan_.erase(hallada);
    return true;
}

void Trazado::Espera(const TextoEsperado& t) {
    if (quitar([&](const Operacion& o) { return Igual(o, t); })) return;
    ADD_FAILURE() << "missing text '" << t.texto.toStdString() << "' at " << t.x << ", " << t.y
                  << " size " << t.cuerpo << " bold " << t.negrita << " italic " << t.cursiva;
    for (const auto& o : quedan_)
        if (o.texto == t.texto) ADD_FAILURE() << "drawn instead: " << Describir(o);
}

void Trazado::EsperaCaja(float origen, const FilaTrazo& f, int pluma) {
    EXPECT_TRUE(quitar([&](const Operacion& o) {
        return MismoTrazo(o, Operacion::Caja, origen, f) && o.estado.pluma == pluma &&
               o.estado.relleno == 0xFFFFFF && o.color == 0x000000;
    })) << "missing frame "
        << f.x1 << ", " << f.y1 << " to " << f.x2 << ", " << f.y2 << " from " << origen;
}

void Trazado::EsperaLinea(float origen, const FilaTrazo& f) {
    EXPECT_TRUE(quitar([&](const Operacion& o) {
        return MismoTrazo(o, Operacion::Linea, origen, f) && o.estado.pluma == 2 &&
               o.color == 0x000000;
    })) << "missing line "
        << f.x1 << ", " << f.y1 << " to " << f.x2 << ", " << f.y2 << " from " << origen;
}

void Trazado::EsperaGris(float origen, const FilaTrazo& f) {
    EXPECT_TRUE(quitar([&](const Operacion& o) {
        return MismoTrazo(o, Operacion::CajaRellena, origen, f) && o.color == 0xE0E0E0;
    })) << "missing grey box "
        << f.x1 << ", " << f.y1 << " to " << f.x2 << ", " << f.y2 << " from " << origen;
}

void Trazado::EsperaImagen(const QString& nombre, float x, float y, std::optional<Tamano> tamano) {
    EXPECT_TRUE(quitar([&](const Operacion& o) {
        return o.tipo == Operacion::Imagen && o.texto == nombre && Cerca(o.desde, x, y) &&
               o.tamano.has_value() == tamano.has_value() &&
               (!tamano ||
                (Cerca(o.tamano->ancho, tamano->ancho) && Cerca(o.tamano->alto, tamano->alto)));
    })) << "missing picture "
        << nombre.toStdString();
}

void Trazado::EsperaNadaMas() const {
    for (const auto& o : quedan_) ADD_FAILURE() << "drawn and not expected: " << Describir(o);
}

void Trazado::QuitaTextosVacios() {
    while (quitar(
        [](const Operacion& o) { return o.tipo == Operacion::Texto && o.texto.isEmpty(); })) {
    }
}

QStringList TextosDePagina(const Documento& documento, int pagina) {
    QStringList textos;
    for (const auto& o : documento.De(Operacion::Texto))
        if (o.pagina == pagina) textos << o.texto;
    return textos;
}

std::vector<TextoEsperado> Textos(float origen, const FilaNumero& f, float cuerpo) {
    const QString texto = Cadena(f.numero);
    const float ancho = 0.22F * cuerpo * static_cast<float>(texto.size());
    if (f.derecha) return {{texto, X + f.x - ancho, origen + f.y, cuerpo, true, false, estrecha}};
    return {{texto, X + f.x, Arriba(origen + f.y, cuerpo), cuerpo, true, false, estrecha}};
}

std::vector<TextoEsperado> Textos(float origen, const FilaTexto& f) {
    const QString texto = Cadena(f.texto) + Puntos(f);
    const float y = origen + f.y;
    if (f.ancho <= 0)
        return {{texto, X + f.x, Arriba(y, f.cuerpo), f.cuerpo, f.negrita, f.cursiva, estrecha,
                 f.subrayado}};
    const float ancho = AnchoFijo(texto, f.cuerpo, f.negrita, f.cursiva);
    const float x = f.ancho / 2 + X + f.x - ancho / 2;
    return {{texto, x, y, f.cuerpo, f.negrita, f.cursiva, estrecha}};
}

std::vector<TextoEsperado> Textos(float origen, const FilaPar& f) {
    const QString eus = Cadena(f.eus);
    const QString cas = Cadena(f.cas);
    const bool b = f.negrita;
    if (f.ancho <= 0) {
        const float y = Arriba(origen + f.y, f.cuerpo);
        const float segunda = X + f.x + AnchoFijo(eus + u' ', f.cuerpo, b, true);
        return {{eus, X + f.x, y, f.cuerpo, b, true, estrecha},
                {QStringLiteral("/ ") + cas, segunda, y, f.cuerpo, b, false, estrecha}};
    }
    const float ancho = AnchoFijo(eus + u'/' + cas, f.cuerpo, b, false);
    const float x = f.ancho / 2 + X + f.x - ancho / 2;
    const float y = origen + f.y;
    return {{eus, x, y, f.cuerpo, b, true, estrecha},
            {QStringLiteral(" / ") + cas, x + AnchoFijo(eus, f.cuerpo, b, true), y, f.cuerpo, b,
             false, estrecha}};
}

std::vector<TextoEsperado> Textos(float origen, const FilaEnPunto& f) {
    const QString eus = Cadena(f.eus);
    const QString cas = f.cas != nullptr ? QStringLiteral(" / ") + Cadena(f.cas) : QString();
    const float x = X + f.x - AnchoFijo(eus + cas, f.cuerpo, f.negrita, false) / 2;
    const float y = origen + f.y - 0.4F * f.cuerpo / 2;
    if (cas.isEmpty()) return {{eus, x, y, f.cuerpo, f.negrita, false, estrecha}};
    const float segunda = x + AnchoFijo(eus, f.cuerpo, f.negrita, true);
    return {{eus, x, y, f.cuerpo, f.negrita, true, estrecha},
            {cas, segunda, y, f.cuerpo, f.negrita, false, estrecha}};
}

std::vector<TextoEsperado> EnRomana(std::vector<TextoEsperado> textos) {
    for (auto& t : textos) t.fuente = romana;
    return textos;
}

TextoEsperado ValorRomano(float origen, float x, float y, const QString& texto, float cuerpo) {
    return EnRomana({ValorEsperado(origen, x, y, texto, cuerpo)}).front();
}

TextoEsperado ValorEsperado(float origen, float x, float y, const QString& texto, float cuerpo) {
    return {texto, X + x, Arriba(origen + y, cuerpo), cuerpo, true, false, estrecha};
}

}  // namespace padral::test
