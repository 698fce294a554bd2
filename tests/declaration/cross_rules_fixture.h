#pragma once
// Declarations for the rules across sections: valid ones of each kind, and changes to them written
// as text: "g.Causa1=M 5.IVA=S 3.Anagrama=" sets fields of the general data and of the sections.

#include <array>
#include <vector>

#include "declaration/cross_rules.h"
#include "declaration/declaration_fixture.h"
#include "sections/tax_changes.h"

namespace padral::pruebas {

/// A field by its name in the text of a change.
template <class Miembro>
struct CampoDe {
    const char16_t* nombre;
    Miembro miembro;
};

using TextoGeneral = QString DatosGeneralesStore::*;
inline constexpr CampoDe<TextoGeneral> TextosGenerales[] = {
    {u"g.DNI", &DatosGeneralesStore::DNI},
    {u"g.Causa1", &DatosGeneralesStore::Causa1},
    {u"g.Apartado2", &DatosGeneralesStore::Apartado2},
    {u"g.Apartado3", &DatosGeneralesStore::Apartado3},
    {u"g.Apartado4", &DatosGeneralesStore::Apartado4},
    {u"g.Apartado5", &DatosGeneralesStore::Apartado5},
    {u"g.Apartado6", &DatosGeneralesStore::Apartado6},
    {u"g.Apartado7", &DatosGeneralesStore::Apartado7},
    {u"g.AnexoI", &DatosGeneralesStore::AnexoI},
    {u"g.AnexoII", &DatosGeneralesStore::AnexoII},
};

using Escritor = void (*)(cDeclaraciones&, const QString&);
/// Fields that no table of the store has, or has under a condition.
inline constexpr CampoDe<Escritor> CamposSueltos[] = {
    {u"g.MotivoCambio",
     [](cDeclaraciones& d, const QString& v) { d.general.MotivoCambio = v.toShort(); }},
    {u"g.FechaModificacion",
     [](cDeclaraciones& d, const QString& v) { d.general.FechaModificacion(v.toInt()); }},
    {u"g.FECHAVIGOR",
     [](cDeclaraciones& d, const QString& v) { d.general.FECHAVIGOR = v.toInt(); }},
    {u"2.CodigoProvinciaAct",
     [](cDeclaraciones& d, const QString& v) { d.apartado2.Act.CodigoProvincia = v.toInt(); }},
    {u"2.CodigoProvinciaSoc",
     [](cDeclaraciones& d, const QString& v) { d.apartado2.Soc.CodigoProvincia = v.toInt(); }},
    {u"2.Lleno", [](cDeclaraciones& d, const QString& v) { d.apartado2.Lleno = v.toInt() != 0; }},
    {u"3.Lleno", [](cDeclaraciones& d, const QString& v) { d.apartado3.Lleno = v.toInt() != 0; }},
    {u"4.Lleno", [](cDeclaraciones& d, const QString& v) { d.apartado4.Lleno = v.toInt() != 0; }},
    {u"5.Lleno",
     [](cDeclaraciones& d, const QString& v) { d.apartado5.APARTADO5LLENO = v.toInt() != 0; }},
    {u"6.Lleno", [](cDeclaraciones& d, const QString& v) { d.apartado6.Lleno = v.toInt() != 0; }},
    {u"7.Lleno", [](cDeclaraciones& d, const QString& v) { d.apartado7.Lleno = v.toInt() != 0; }},
    {u"II.Lleno", [](cDeclaraciones& d, const QString& v) { d.anexoII.Lleno = v.toInt() != 0; }},
};

/// A further participant; a deleted one is not counted.
inline void sumarParticipe(cDeclaraciones& d, const QString& dni, const QString& modo,
                           float porcentaje = 0) {
    auto p = std::make_shared<cParticipes>(d.participantes, d.estado.RutaBDModificacion);
    p->DNI = dni;
    p->Modo = modo;
    p->PorcenPart = porcentaje;
    d.participantes.colParticipes.push_back(p);
    if (modo != QStringLiteral("E")) d.IncrementarNumParti();
}

/// Sets the field of a section by its name in the table of the store.
inline void ponerCampo(cDeclaraciones& d, const QString& nombre, const QString& valor) {
    const auto escribir = [&valor, campo = nombre.section(u'.', 1)](auto& registro, auto tabla) {
        tabla[posicion(tabla, campo)].escribir(registro, valor);
    };
    switch (nombre.at(0).unicode()) {
        case u'2':
            return escribir(d.apartado2, TablaApartado2());
        case u'3':
            return escribir(d.apartado3, TablaApartado3());
        case u'4':
            return escribir(d.apartado4, TablaApartado4());
        case u'5':
            return escribir(d.apartado5, TablaApartado5());
        case u'6':
            return escribir(d.apartado6, TablaApartado6());
        case u'7':
            return escribir(d.apartado7, TablaApartado7());
        default:
            throw std::invalid_argument(nombre.toStdString());
    }
}

/// One field; `_` in the value is a blank, and "p.C=12345678Z" a participant with that `Modo`.
inline void ponerUno(cDeclaraciones& d, const QString& nombre, QString valor) {
    valor.replace(u'_', u' ');
    if (nombre.startsWith(QStringLiteral("p.")))
        return sumarParticipe(d, valor, nombre.section(u'.', 1));
    for (const auto& campo : TextosGenerales)
        if (nombre == QStringView(campo.nombre)) {
            d.general.*campo.miembro = valor;
            return;
        }
    for (const auto& campo : CamposSueltos)
        if (nombre == QStringView(campo.nombre)) return campo.miembro(d, valor);
    ponerCampo(d, nombre, valor);
}

inline void poner(cDeclaraciones& d, const char16_t* texto) {
    for (const auto& [nombre, valor] : pares(texto)) ponerUno(d, nombre, valor);
}

/// The valid declarations that the cases start from.
enum class Base {
    Persona,       ///< a natural person that starts, with all sections but the cessation
    Sociedad,      ///< the same of a company
    Comunidad,     ///< the same of a community with two participants
    SinNif,        ///< the company without an identifier yet
    Previa,        ///< the natural person before the start
    Modificacion,  ///< the natural person's change
    Vacia,         ///< a change that is only one of identity
    Cese,          ///< the natural person's end, cause 10
    CeseSociedad,  ///< the company's end, cause 20
    CeseComunidad  ///< the community's end, cause 22
};

/// The section 5 of all starts as general regime; the rest of its answers is "N".
#define BASE_COMUN                                                                            \
    u"g.Causa1=I g.FECHAVIGOR=20150401 g.Apartado2=X 2.Lleno=1 2.ElMismoAct=X g.Apartado3=X " \
    u"3.Lleno=1 3.FechaInicio=20150401 3.ActivEcon=1651100 3.ListaEpigrafe=COMERCIO "         \
    u"g.Apartado4=X 4.Lleno=1 4.IVAEXPORT=B g.Apartado5=X 5.Lleno=1 5.IVA=S 5.GENERAL=S "     \
    u"g.Apartado7=X 7.Lleno=1 7.Agric=S g.AnexoII=X II.Lleno=1 "
#define BASE_PERSONA BASE_COMUN u"g.DNI=12345678Z 5.IRPFDIRECTA=S "
#define BASE_SIN_NIF \
    BASE_COMUN u"3.CodigoFormaJuridica=1 3.DescripcionFormaJuridica=SOCIEDAD_ANONIMA_-_A "      \
               u"3.FechaCierre=1231 5.SOCIEDADES=S "
#define BASE_SOCIEDAD BASE_SIN_NIF u"g.DNI=A12345674 "
#define BASE_COMUNIDAD BASE_COMUN u"g.DNI=E12345674 g.AnexoI=X p.C=12345678Z p.C=87654321X "
#define BASE_CESE                                                                   \
    u"g.Causa1=C g.Apartado6=X 6.Lleno=1 6.FECHACESE=20150401 5.IVA=N 5.GENERAL=N " \
    u"5.SATISRENDTRAB=S "

inline constexpr std::array TextosBase = {
    BASE_PERSONA,
    BASE_SOCIEDAD,
    BASE_COMUNIDAD,
    BASE_SIN_NIF,
    BASE_PERSONA u"g.Causa1=P",
    BASE_PERSONA u"g.Causa1=M g.FechaModificacion=20150401",
    u"g.DNI=12345678Z g.Causa1=M g.FechaModificacion=20150401 g.MotivoCambio=10",
    BASE_PERSONA BASE_CESE u"6.CAUSA=10",
    BASE_SOCIEDAD BASE_CESE u"6.CAUSA=20",
    BASE_COMUNIDAD BASE_CESE u"6.CAUSA=22",
};

/// One of the valid declarations with a change; the rules see it as the screen leaves it.
class ConCruces : public ConDeclaracion {
protected:
    void preparar(Base base, const char16_t* cambio = u"") {
        d.InicializarDeclaracion();
        g.FECHAVIGOR = 0;
        static_cast<RespuestasApartado5&>(d.apartado5) = respuestas(u"");
        poner(d, TextosBase[static_cast<std::size_t>(base)]);
        poner(d, cambio);
    }
    ResultadoCruce validar() { return ValidarApartados(d, valida); }

    QStringList malos;  ///< what the common server refuses
    const ServidorNif valida = [this](const QString& nif) { return !malos.contains(nif); };
};

}  // namespace padral::pruebas
