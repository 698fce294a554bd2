#include "printing/job.h"

#include "declaration/general_data.h"
#include "printing/annex1.h"
#include "printing/annex2.h"
#include "printing/page1.h"
#include "printing/page2.h"
#include "printing/page3.h"
#include "printing/page4.h"
#include "printing/primitives.h"

namespace padral {
namespace {

struct Copia {
    const char16_t* tipo;
    const char16_t* imagen;
};
// The form has five copies; the dialog asks for the first three only.
constexpr Copia copias[] = {
    {u"AD", u"Administracion"}, {u"IT", u"Interesado"},  {u"BO", u"Borrador"},
    {u"BA", u"Banco"},          {u"IF", u"Informatica"},
};

/// A page, or a run of pages, of a copy: when it prints and with which origin it is entered.
struct EntradaPagina {
    bool (*seImprime)(const RegistrosImpresos&, const QString& tipoCopia);
    Mm x, y;
    void (*imprimir)(const Hoja&, Mm& x, Mm& y, const QString& imagen);
};

bool Siempre(const RegistrosImpresos& /*registros*/, const QString& /*tipoCopia*/) { return true; }

bool ConApartado2o3(const RegistrosImpresos& registros, const QString& /*tipoCopia*/) {
    const cDatosGenerales& datos = registros.generales;
    return datos.Apartado2 == u"X" || datos.Apartado3 == u"X";
}

bool ConApartado4o5(const RegistrosImpresos& registros, const QString& /*tipoCopia*/) {
    const cDatosGenerales& datos = registros.generales;
    return datos.Apartado4 == u"X" || datos.Apartado5 == u"X";
}

bool ConApartado6o7(const RegistrosImpresos& registros, const QString& /*tipoCopia*/) {
    const cDatosGenerales& datos = registros.generales;
    return datos.Apartado6 == u"X" || datos.Apartado7 == u"X";
}

bool ConAnexoI(const RegistrosImpresos& registros, const QString& /*tipoCopia*/) {
    return registros.generales.AnexoI == u"X";
}

/// The authority keeps two sets of the participants.
bool ConAnexoIRepetido(const RegistrosImpresos& registros, const QString& tipoCopia) {
    return ConAnexoI(registros, tipoCopia) && tipoCopia == u"AD";
}

bool ConAnexoII(const RegistrosImpresos& registros, const QString& /*tipoCopia*/) {
    return registros.generales.AnexoII == u"X";
}

// In the order of the copy.
constexpr EntradaPagina paginas[] = {
    {Siempre, 0.1F, 38.5F, ImprimirPaginasPrincipales},
    {ConApartado2o3, 0.1F, 35.5F, ImprimirHoja2},
    {ConApartado4o5, 0.1F, 4, ImprimirApartados4y5},
    {ConApartado6o7, 0.1F, 34, ImprimirApartados6y7},
    {ConAnexoI, 0.1F, 3, ImprimirAnexoI},
    {ConAnexoIRepetido, 0.1F, 3, ImprimirAnexoI},
    {ConAnexoII, 0.1F, 3, ImprimirAnexoII},
};

QString TituloDocumento(const RegistrosImpresos& registros, const QString& tipoCopia) {
    return QStringLiteral("417-%1-%2").arg(registros.generales.DNI, tipoCopia);
}

}  // namespace

bool ValidarCopias(const OpcionesImpresion& opciones) {
    return opciones.borrador || opciones.copiaAdministracion || opciones.copiaInteresado;
}

QStringList CopiasPedidas(const OpcionesImpresion& opciones) {
    if (opciones.borrador) return {QStringLiteral("BO")};
    QStringList pedidas;
    if (opciones.copiaAdministracion) pedidas << QStringLiteral("AD");
    if (opciones.copiaInteresado) pedidas << QStringLiteral("IT");
    return pedidas;
}

QString ImagenDeCopia(const QString& TipoCopia) {
    for (const Copia& copia : copias)
        if (TipoCopia == QStringView(copia.tipo)) return QString::fromUtf16(copia.imagen);
    return {};
}

void Imprimir::ImprimirDeclaracion(const QString& TipoCopia) {
    const auto impresora = fabrica_.Abrir(TituloDocumento(registros_, TipoCopia));
    impresora->estado.pluma = PlumaFina;
    const QString imagen = ImagenDeCopia(TipoCopia);
    const Hoja hoja = {*impresora, estado_, registros_};
    for (const EntradaPagina& pagina : paginas) {
        if (!pagina.seImprime(registros_, TipoCopia)) continue;
        Mm x = pagina.x;
        Mm y = pagina.y;
        pagina.imprimir(hoja, x, y, imagen);
    }
    impresora->Cerrar();
}

}  // namespace padral
