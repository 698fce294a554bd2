#include "printing/furniture.h"

#include "core/shared_state.h"
#include "declaration/general_data.h"
#include "printing/pictures.h"
#include "printing/primitives.h"

namespace padral {
namespace {

constexpr Mm AltoCabecera = 30;
constexpr Mm XReferencia = 171.5F;
constexpr Mm AnchoReferencia = 21.5F;

constexpr Raya rayasCabecera[] = {
    {XTitulos, 0, XTitulos, AltoCabecera},
    {XReferencia, 0, XReferencia, AltoCabecera},
    {XReferencia, 17, AnchoImpreso, 17},
    {XReferencia, 25, AnchoImpreso, 25},
};

constexpr Rotulo rotulosReferencia[] = {
    EnAncho(AnchoReferencia, Eus(XReferencia, 18, u"Erreferentzia zk")),
    EnAncho(AnchoReferencia, Cas(XReferencia, 21.5F, u"Nº Referencia")),
};

/// Where the authority stands in a heading; its lines keep their order and their left edges.
struct LugarAutoridad {
    Mm xNombres;
    Mm yEuskera, yCastellano, yWeb;
};
constexpr LugarAutoridad autoridadPrimeras = {20, 19, 21.5F, 25};
constexpr LugarAutoridad autoridadDemas = {19, 18, 20.5F, 24};

constexpr Rotulo nombresAutoridad[] = {
    Cas(0, 10, u"Kelmariako Foru Aldundia"),
    Cas(0, 13, u"Diputación Foral de Kelmaria"),
};

constexpr Raya rayasIdentificacion[] = {
    {0, 4, AnchoImpreso, 4},
    {0, 12, AnchoImpreso, 12},
    {39, 4, 39, 12},
};

constexpr Rotulo tituloIdentificacion[] = {
    EnAncho(AnchoImpreso, Par(0, 0.5F, u"IDENTIFIKAZIO DATUAK", u"DATOS IDENTIFICATIVOS")),
};

constexpr Casilla casillasIdentificacion[] = {
    {.numero = u"1", .lugarNumero = {2, 5.5F}, .rotulos = {Par(5.5F, 5.5F, u"IFZ", u"N.I.F.")}},
    {.numero = u"2",
     .lugarNumero = {42, 5.5F},
     .rotulos = {Par(45, 5.5F, u"Deiturak eta izena, edo sozietatearen izena",
                     u"Apellidos y Nombre, o Razón Social")}},
};

/// Languages of the common server when the form is printed.
constexpr int IdiomaEuskera = 1000;
constexpr int IdiomaCastellano = 0;

QString NombreDepartamento(EstadoCompartido& estado, int idioma) {
    const auto comun = std::make_shared<SvrBaseComunLib::cMiscelaneos>();
    estado.ObjComun = comun;
    comun->Idioma = idioma;
    const QString nombre = comun->HaciendaFiscalidad();
    estado.ObjComun.reset();
    return nombre;
}

void EscribirAutoridad(const Hoja& hoja, Mm x, Mm y, const LugarAutoridad& lugar) {
    Impresora& p = hoja.impresora;
    PonerFuente(p, FuenteEstrecha);
    DibujarRotulos(p, x + lugar.xNombres, y, {7, true, nombresAutoridad});
    p.estado.negrita = false;
    EscribirTexto(p, x + 10, y + lugar.yEuskera, NombreDepartamento(hoja.estado, IdiomaEuskera));
    EscribirTexto(p, x + 10, y + lugar.yCastellano,
                  NombreDepartamento(hoja.estado, IdiomaCastellano));
    EscribirTexto(p, x + 10, y + lugar.yWeb, SvrBaseComunLib::DireccionWebAutoridad());
}

void PintarEmblema(Impresora& p, Mm x, Mm y) {
    p.PintarImagen(QString::fromUtf16(ImagenEmblema), {x + 2, y + 3}, Tamano{14, 14});
}

void EscribirNumeroImpreso(Impresora& p, Mm x, Mm y) {
    PonerFuente(p, FuenteRomana);
    p.estado.cuerpo = 32;
    EscribirCentradoEnAncho(p, x + XReferencia, y + 3, AnchoReferencia, QStringLiteral("417"));
    PonerFuente(p, FuenteEstrecha);
    DibujarRotulos(p, x, y, {8, false, rotulosReferencia});
}

}  // namespace

void PonerFuente(Impresora& p, const char16_t* nombre) {
    p.estado.fuente = QString::fromUtf16(nombre);
}

void MarcoGrueso(Impresora& p, Mm x, Mm y1, Mm y2) {
    p.estado.pluma = PlumaGruesa;
    DibujarMarco(p, x, y1, x + AnchoImpreso, y2);
}

void ImprimirBloque(const Hoja& hoja, Mm x, Mm y, const Bloque& bloque) {
    const Mm origen = y + bloque.origen;
    MarcoGrueso(hoja.impresora, x, origen + bloque.arriba, origen + bloque.abajo);
    bloque.dibujar(hoja, x, origen);
    bloque.rellenar(hoja, x, origen);
}

void DibujarCabeceraComun(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarMarco(p, x, y, x + AnchoImpreso, y + AltoCabecera);
    DibujarRayas(p, x, y, rayasCabecera);
    PintarEmblema(p, x, y);
    EscribirAutoridad(hoja, x, y, autoridadPrimeras);
    EscribirNumeroImpreso(p, x, y);
}

void DibujarAutoridad(const Hoja& hoja, Mm x, Mm y) {
    EscribirAutoridad(hoja, x, y, autoridadDemas);
    PonerFuente(hoja.impresora, FuenteRomana);
    PintarEmblema(hoja.impresora, x, y);
}

void DibujarIdentificacion(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    DibujarRayas(p, x, y, rayasIdentificacion);
    DibujarRotulos(p, x, y, {8, true, tituloIdentificacion});
    DibujarCasillas(p, x, y, casillasIdentificacion);
}

void RellenarIdentificacion(const Hoja& hoja, Mm x, Mm y) {
    Impresora& p = hoja.impresora;
    const cDatosGenerales& datos = hoja.registros.generales;
    PonerLetra(p, 10, true);
    EscribirTexto(p, x + 2, y + 9, datos.DNI);
    EscribirTexto(p, x + 41, y + 9, datos.NOMBRE);
    p.estado.cuerpo = 8;
}

}  // namespace padral
