#pragma once
// Answers of sections 4 and 5 written as text: "IVA=S GENERAL=N Agric=" (nothing is a blank).

#include <stdexcept>
#include <utility>
#include <vector>

#include "core/review.h"
#include "sections/record_checks.h"
#include "sections/tax/section4.h"
#include "sections/tax/section5.h"
#include "sections/tax/tax_rules.h"

namespace padral::pruebas {

/// Before and from each date on which rules change.
inline constexpr qint32 Fin2013 = 20131231, Inicio2014 = 20140101;
inline constexpr qint32 Fin2014 = 20141231, Inicio2015 = 20150101;

/// The names and values of a text, in its order.
inline std::vector<std::pair<QString, QString>> pares(const char16_t* texto) {
    std::vector<std::pair<QString, QString>> salida;
    for (const QString& parte : q(texto).split(u' ', Qt::SkipEmptyParts))
        salida.emplace_back(parte.section(u'=', 0, 0), parte.section(u'=', 1));
    return salida;
}

/// The position of a name in a table; a name that it does not have is a fault of the test.
template <class R>
std::size_t posicion(std::span<const Columna<R>> tabla, const QString& nombre) {
    for (std::size_t i = 0; i < tabla.size(); ++i)
        if (q(tabla[i].nombre) == nombre) return i;
    throw std::invalid_argument(nombre.toStdString());
}

template <class R>
void poner(R& registro, std::span<const Columna<R>> tabla, const char16_t* texto) {
    for (const auto& [nombre, valor] : pares(texto))
        tabla[posicion(tabla, nombre)].escribir(registro, valor);
}
inline void poner(DatosApartado4& r, const char16_t* texto) { poner(r, TablaApartado4(), texto); }
inline void poner(RespuestasApartado5& r, const char16_t* texto) {
    poner(r, TablaApartado5(), texto);
}
inline DatosApartado4 apartado4(const char16_t* texto) {
    DatosApartado4 r;
    poner(r, texto);
    return r;
}

/// Section 5 with an "N" everywhere but in these answers.
inline RespuestasApartado5 respuestas(const char16_t* texto) {
    RespuestasApartado5 r;
    for (const auto& c : TablaApartado5()) c.escribir(r, QStringLiteral("N"));
    poner(r, texto);
    return r;
}
/// Valid in both editions: the yes branch with the general regime.
inline RespuestasApartado5 ramaSi() { return respuestas(u"IVA=S GENERAL=S"); }

/// A box that a check must ask for.
struct AvisoEsperado {
    int texto, titulo;
    const char16_t* prefijo = u"";
    const char16_t* foco = u"";
    bool exclamacion = false;
};
inline void comprobarAvisos(const Revision& revision, const std::vector<AvisoEsperado>& avisos) {
    EXPECT_EQ(revision.valida(), avisos.empty());
    ASSERT_EQ(revision.avisos.size(), avisos.size());
    for (std::size_t i = 0; i < avisos.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(revision.avisos[i].texto, avisos[i].texto);
        EXPECT_EQ(revision.avisos[i].titulo, avisos[i].titulo);
        EXPECT_EQ(q(revision.avisos[i].prefijo), q(avisos[i].prefijo));
        EXPECT_EQ(q(revision.avisos[i].foco), q(avisos[i].foco));
        EXPECT_EQ(revision.avisos[i].exclamacion, avisos[i].exclamacion);
    }
}

}  // namespace padral::pruebas
