#include "declaration/section_boxes.h"

#include <algorithm>

namespace padral {

namespace {

using D = cDeclaraciones;
using S = DatosGeneralesStore;

const QString MarcaDeSeccion = QStringLiteral("X");

bool tipoNoEs(const QString& c, QStringView excluidos) {
    return !c.trimmed().isEmpty() && !excluidos.contains(c);
}

/// The counters may be 0 while there are some: a modification that is no more sets them so.
bool hayParticipes(const D& d) {
    return std::ranges::any_of(d.participantes.colParticipes,
                               [](const auto& p) { return p->Modo.texto() != u"E"; });
}

/// Stored participants are kept until the save, which deletes them in the store.
void borrarParticipes(D& d) {
    std::erase_if(d.participantes.colParticipes, [](const auto& p) { return p->cspa == 0; });
    for (const auto& p : d.participantes.colParticipes) p->Modo = QStringLiteral("E");
    d.general.NumParti = 0;
    d.NumParti = 0;
    d.parLista.NUMPARTLIST = 0;
}

constexpr std::array<CasillaApartado, 8> Apartados = {{
    {u"chkApartado2", u"cmdApartado2", 2, 422, 423, 519, 520, u"2 ", &S::Apartado2,
     [](const D& d) { return d.apartado2.Lleno; },
     [](D& d) { d.apartado2.InicializarApartado2(u"TODOS"); },
     [](const D&, const QString&) { return true; }},
    {u"chkApartado3", u"cmdApartado3", 3, 420, 421, 521, 522, u"3 ", &S::Apartado3,
     [](const D& d) { return d.apartado3.Lleno; },
     [](D& d) { d.apartado3.ResetForNewDeclaration(); },
     [](const D&, const QString& c) { return tipoNoEs(c, u"CP"); }},
    {u"chkApartado4", u"cmdApartado4", 4, 418, 419, 523, 524, u"4 ", &S::Apartado4,
     [](const D& d) { return d.apartado4.Lleno; },
     [](D& d) { d.apartado4.ResetForNewDeclaration(); },
     [](const D&, const QString& c) { return tipoNoEs(c, u"C"); }},
    {u"chkApartado5", u"cmdApartado5", 5, 416, 417, 525, 526, u"5 ", &S::Apartado5,
     [](const D& d) { return d.apartado5.APARTADO5LLENO; },
     [](D& d) { d.apartado5.ResetForNewDeclaration(); },
     [](const D&, const QString& c) { return tipoNoEs(c, u"PI"); }},
    {u"chkApartado6", u"cmdApartado6", 6, 414, 415, 527, 528, u"6 ", &S::Apartado6,
     [](const D& d) { return d.apartado6.Lleno; },
     [](D& d) { d.apartado6.ResetForNewDeclaration(); },
     [](const D&, const QString&) { return false; }},
    {u"chkApartado7", u"cmdApartado7", 7, 412, 413, 529, 530, u"7 ", &S::Apartado7,
     [](const D& d) { return d.apartado7.Lleno; },
     [](D& d) { d.apartado7.ResetForNewDeclaration(); },
     [](const D&, const QString& c) { return tipoNoEs(c, u""); }},
    {u"chkApartado8", u"cmdAnexo", 8, 410, 411, 531, 532, u"AI", &S::AnexoI, hayParticipes,
     borrarParticipes, [](const D& d, const QString&) { return !d.AnexoIForzado(); }},
    {u"chkAnexoII", u"cmdAnexoII", 10, 751, 752, 746, 747, u"AII", &S::AnexoII,
     [](const D& d) { return d.anexoII.Lleno; }, [](D& d) { d.anexoII.ResetForNewDeclaration(); },
     [](const D&, const QString& c) { return tipoNoEs(c, u"C"); }},
}};

constexpr std::array<CasillaTipo, 4> Tipos = {{
    {u"chkDeclaracionPrevia", 443, u'P'},
    {u"chkDeclaracionInicio", 442, u'I'},
    {u"chkDeclaracionModificacion", 441, u'M'},
    {u"chkDeclaracionCese", 440, u'C'},
}};

constexpr std::array<CasillaSolicitud, 6> Solicitudes = {{
    {u"chkPorComienzo", 396, u'A', u"CM", 448},
    {u"chkModificacionFormaJuridica", 403, u'B', u"PIC", 450},
    {u"chkAnulacionPorCese", 402, u'C', u"PIM", 451},
    {u"chkPorExtravio", 399, u'D', u"", 0},
    {u"chkPorDefinitivo", 398, u'E', u"", 0},
    {u"chkPorOtrasCausas", 397, u'F', u"", 0},
}};

constexpr int PreguntaAntes = 655;
constexpr int PreguntaDespues = 656;
constexpr int TituloBorrado = 535;

/// What a type marks, besides the box of its own section.
struct EfectoTipo {
    QChar letra;
    std::array<QString S::*, 3> marca;
    bool anexoIDeE;  ///< Annex I too, for an identifier that begins with E
};
constexpr std::array<EfectoTipo, 4> Efectos = {{
    {u'P', {&S::Apartado2, &S::Apartado3, &S::Apartado5}, true},
    {u'I', {&S::Apartado5, nullptr, nullptr}, true},
    {u'M', {nullptr, nullptr, nullptr}, false},
    {u'C', {&S::Apartado6, nullptr, nullptr}, false},
}};

constexpr std::array ApartadosDeCese = {Apartado::Tres, Apartado::Cuatro, Apartado::AnexoII};
constexpr std::array ApartadosDeTipo = {Apartado::Tres, Apartado::Cuatro, Apartado::Cinco,
                                        Apartado::Seis, Apartado::Siete,  Apartado::AnexoII};

std::optional<PreguntaBorrado> preguntaLista(const D& d, const QString& lista) {
    if (lista.isEmpty()) return std::nullopt;
    return PreguntaBorrado{d.estado.Texto(PreguntaAntes) + lista + d.estado.Texto(PreguntaDespues),
                           d.estado.Texto(TituloBorrado)};
}

}  // namespace

std::span<const CasillaApartado, 8> CasillasApartado() { return Apartados; }
std::span<const CasillaTipo, 4> CasillasTipo() { return Tipos; }
std::span<const CasillaSolicitud, 6> CasillasSolicitud() { return Solicitudes; }

const CasillaApartado& CasillaDe(Apartado apartado) {
    return Apartados[static_cast<std::size_t>(apartado)];
}

void BorrarApartado(cDeclaraciones& declaracion, Apartado apartado) {
    const auto& casilla = CasillaDe(apartado);
    casilla.limpiar(declaracion);
    (declaracion.general.*casilla.bandera).clear();
}

std::optional<PreguntaBorrado> PreguntaMarcarTipo(const cDeclaraciones& d, QChar letra) {
    if (letra != u'C') {
        const auto& seis = CasillaDe(Apartado::Seis);
        if (!seis.lleno(d)) return std::nullopt;
        return PreguntaBorrado{d.estado.Texto(seis.pregunta), d.estado.Texto(seis.tituloPregunta)};
    }
    QString lista;
    for (const auto apartado : ApartadosDeCese) {
        const auto& casilla = CasillaDe(apartado);
        if (!casilla.lleno(d)) continue;
        lista += QString::fromUtf16(casilla.lista);
        if (apartado == Apartado::AnexoII) lista += u' ';
    }
    return preguntaLista(d, lista);
}

void MarcarTipo(cDeclaraciones& d, QChar letra) {
    if (letra == u'C')
        for (const auto apartado : ApartadosDeCese) BorrarApartado(d, apartado);
    else
        BorrarApartado(d, Apartado::Seis);
    for (const auto& efecto : Efectos) {
        if (efecto.letra != letra) continue;
        for (const auto bandera : efecto.marca)
            if (bandera) d.general.*bandera = MarcaDeSeccion;
        if (efecto.anexoIDeE && d.general.DNI.startsWith(u'E')) d.general.AnexoI = MarcaDeSeccion;
    }
    d.general.Causa1 = letra;
}

std::optional<PreguntaBorrado> PreguntaQuitarTipo(const cDeclaraciones& d) {
    const bool cese = d.general.Causa1 == QStringLiteral("C");
    QString lista;
    for (const auto apartado : ApartadosDeTipo) {
        // A cessation tells the participants in the place of Annex II.
        const bool anexo = apartado == Apartado::AnexoII;
        const auto& casilla = CasillaDe(anexo && cese ? Apartado::AnexoI : apartado);
        if (casilla.lleno(d)) lista += QString::fromUtf16(casilla.lista);
    }
    return preguntaLista(d, lista);
}

void QuitarTipo(cDeclaraciones& d) {
    for (const auto apartado : ApartadosDeTipo) BorrarApartado(d, apartado);
    if (d.general.Causa1 == QStringLiteral("M")) d.general.IniciarVarGen();
    d.general.Causa1.clear();
}

qint32 CalcularFechaVigor(const cDeclaraciones& d) {
    if (d.general.Causa1 == QStringLiteral("M")) return d.general.FechaModificacion();
    if (d.general.Causa1 == QStringLiteral("C")) return d.apartado6.FECHACESE;
    return d.apartado3.FechaInicio();
}

void AjustarGenerales(cDeclaraciones& d) {
    auto& g = d.general;
    if (g.MotivoCambio != 10 && g.MotivoCambio != 30) g.DNIAnterior.clear();
    if (g.MotivoCambio == 0) g.NombreAnterior.clear();
    if (g.Causa1 != QStringLiteral("M")) g.FechaModificacion(0);
    if (g.Causa2 != QStringLiteral("A")) g.FechaConstitucion = 0;
    if (g.Causa2 != QStringLiteral("E")) g.FechaInscripcion = 0;
    g.FECHAVIGOR = CalcularFechaVigor(d);
    // A box that cannot be ticked by hand shows its mark.
    d.MarcarAnexoPorCese();
}

void AjustarPorFechaModificacion(cDeclaraciones& d) {
    constexpr qint32 Cambio2015 = 20150101;
    const QString vacio;
    if (d.general.FechaModificacion() < Cambio2015) {
        d.apartado4.IVACUOADU = vacio;
        d.apartado3.ActVenMov = vacio;
        return;
    }
    d.apartado4.IVAAGENCIAS = vacio;
    d.apartado4.IRPFOBJET = vacio;
    d.apartado5.IRPFOBJETIVA = vacio;
    d.apartado5.AGENCIASGLOBAL = vacio;
    d.anexoII.OpcionApl = vacio;
}

void AjustarPorFechaVigor(cDeclaraciones& d) {
    constexpr qint32 Cambio2014 = 20140101;
    if (d.general.FECHAVIGOR < Cambio2014) return;
    d.apartado4.IRPFOBJET = QString();
    d.apartado5.IRPFOBJETIVA = QStringLiteral("N");
    d.anexoII.OpcionApl = QString();
}

}  // namespace padral
