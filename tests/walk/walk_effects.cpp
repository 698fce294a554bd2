#include "walk/walk_effects.h"

#include <QRegularExpression>
#include <vector>

#include "walk/walk_controls.h"

namespace padral::pruebas {

namespace {

/// What the new value must be.
enum class Queda { Cualquiera, Vacia, No, Marca };

/// Patterns for the whole of a name.
struct Efecto {
    const char *formulario, *control, *propiedad;
    Queda queda = Queda::Cualquiera;
};

constexpr auto Vacia = Queda::Vacia, No = Queda::No;

constexpr Efecto Efectos[] = {
    // The identifier, the cause of cessation and the type ask for Annex I.
    {"FrmDatGen", "txtDNI|chkDeclaracion.*", "G\\.AnexoI", Queda::Marca},
    {"frmApartado6", "cmbDescripcion", "G\\.AnexoI", Queda::Marca},
    // A date of change empties what that year does not know.
    {"FrmDatGen", "mskFechaModificacion", "G\\.FECHAVIGOR"},
    {"FrmDatGen", "mskFechaModificacion",
     "4\\.(IVACUOADU|IVAAGENCIAS|IRPFOBJET)|3\\.ActVenMov|5\\.(IRPFOBJETIVA|AGENCIASGLOBAL)|"
     "A\\.OpcionApl",
     Vacia},
    // A type marks sections, and clears those that it does not allow.
    {"FrmDatGen", "chkDeclaracion.*", "G\\.(Apartado[2-7]|AnexoII|FECHAVIGOR)"},
    {"FrmDatGen", "chkDeclaracion.*", "[3-7A]\\..*|G\\.FechaModificacion", Vacia},
    {"FrmDatGen", "chk(Por|Modificacion|Anulacion).*", "G\\.Fecha(Constitucion|Inscripcion)",
     Vacia},
    {"FrmDatGen", "chkApartado2", "2\\..*", Vacia},
    {"FrmDatGen", "chkApartado3", "3\\..*|G\\.FECHAVIGOR", Vacia},
    {"FrmDatGen", "chkApartado4", "4\\..*", Vacia},
    {"FrmDatGen", "chkApartado5", "5\\..*", Vacia},
    {"FrmDatGen", "chkApartado7", "7\\..*", Vacia},
    {"FrmDatGen", "chkAnexoII", "A\\..*", Vacia},
    {"FrmDatGen", "chkApartado8", "P\\..*"},
    {"FrmDatGen", "chkElMismo", "G\\.(DNI|Nombre)Representante", Vacia},
    {"FrmDatGen", "chkElMismo", "G\\.FirmaEnCalidadDe"},
    {"FrmDatGen", "cmbMotivoCambio", "G\\.(DNI|Nombre)Anterior", Vacia},
    // Before a save, refused or not, since 2014.
    {"FrmDatGen", "cmdAceptar|cmdImprimir|PicOKey|PicImprimir", "4\\.IRPFOBJET|A\\.OpcionApl",
     Vacia},
    {"FrmDatGen", "cmdAceptar|cmdImprimir|PicOKey|PicImprimir", "5\\.IRPFOBJETIVA", No},
    // A domicile is one thing; without a fiscal one no other is the same as it.
    {"FrmApartado2", ".*Fis", "2\\..*Fis"},
    {"FrmApartado2", ".*Soc(ElMismo)?", "2\\..*Soc"},
    {"FrmApartado2", ".*[Aa]ct(ElMismo)?", "2\\..*Act"},
    {"FrmApartado2", ".*Not(ElMismo)?", "2\\..*Not"},
    {"FrmApartado2", ".*Fis", "2\\..*(Soc|Act|Not)", Vacia},
    {"FrmApartado3.*", "mskFechaInicio", "G\\.FECHAVIGOR"},
    // Given up, the date that was written decides no edition any more.
    {"FrmApartado3.*", "cmdCancelar|PicCan", "G\\.FECHAVIGOR"},
    {"FrmApartado3.*", "txtDescripcionActividad|cmbEpigrafe|txtSinEpigrafe",
     "3\\.(ListaEpigrafe|ActivEcon)"},
    {"FrmApartado3.*", "cmbDescFormaJuridica|txtOtros", "3\\.(Codigo|Descripcion)FormaJuridica"},
    {"FrmApartado3.*", "chkCorreo.*", "3\\.DirCorreo", Vacia},
    {"FrmApartado3.*", "chkFax.*", "3\\.numFax", Vacia},
    {"FrmApartado3.*", "chkTelMovil.*", "3\\.numMovil", Vacia},
    {"FrmApartado3.*", "chkTelFijo.*", "3\\.numFijo", Vacia},
    {"FrmApartado3.*", "chk(Consentimiento|Revocacion)", "3\\.(Consentimiento|Revocacion)"},
    {"frmApartado4.*", "ChkSO[12]", "4\\.(NIF|NOMBRE)", Vacia},
    {"frmApartado4", "Chk.*", "4\\.IRPFOBJET", Vacia},
    // The branch of the I.V.A. question that closes answers no.
    {"frmApartado5.*", "chk27",
     "5\\.(GENERAL|RECARGO|AGENCIAS.*|BIENES.*|Agric|SIMPLIF|OPEXSINDCHO|IVACAJA|NO.*)", No},
    {"frmApartado5.*", "chk28",
     "5\\.(GENERAL|RECARGO|AGENCIAS.*|BIENES.*|Agric|SIMPLIF|OPEXSINDCHO|IVACAJA|NO.*)", No},
    {"frmApartado5", "chk.*", "5\\.IRPFOBJETIVA", No},
    {"frmApartado6", "cmbDescripcion|txtSinEpigrafe", "6\\.(CAUSA|DESCRIPCIONCAUSA)"},
    {"frmAnexoII", "chklbl1.*", "A\\.ModalidadEstablecimiento", Vacia},
    {"frmAnexoII", "chklbl5.*", "A\\.Establecimientos", Vacia},
    {"frmAnexoII", "numCodigoProvincia|lstprovincias", "A\\.(Codigo|Nombre)(Provincia|Municipio)"},
    {"frmAnexoII", "numCodigoMunicipio|lstmunicipios", "A\\.(Codigo|Nombre)Municipio"},
    {"frmDatosParticipe", ".*", "PA?\\..*"},
    {"frmListaParticipes", "CmdEliminar|PicBorrar", "PA?\\..*"},
    {"frmListaParticipes", "CmdEliminar|PicBorrar", "G\\.AnexoI", Vacia},
};

/// What showing a screen changes.
constexpr Efecto AlMostrar[] = {
    {"FrmDatGen", "", "G\\.AnexoI", Queda::Marca},
    {"FrmDatGen", "", "G\\.FECHAVIGOR"},
    {"FrmApartado3.*", "", "3\\.(DirCorreo|num.*)", Vacia},
    {"frmApartado4.*", "", "4\\.(NIF|NOMBRE)", Vacia},
    {"frmApartado4", "", "4\\.IRPFOBJET", Vacia},
    {"frmApartado5", "", "5\\.IRPFOBJETIVA", No},
    {"frmAnexoII", "", "A\\.(OpcionApl|ModalidadEstablecimiento|Establecimientos)", Vacia},
    {"frmDatosParticipe", "", "PA\\..*"},
};

struct Patrones {
    QRegularExpression formulario, control, propiedad;
    Queda queda;
};

std::vector<Patrones> compilar(std::span<const Efecto> efectos) {
    const auto patron = [](const char* texto) {
        return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromLatin1(texto)));
    };
    std::vector<Patrones> lista;
    for (const auto& e : efectos)
        lista.push_back({patron(e.formulario), patron(e.control), patron(e.propiedad), e.queda});
    return lista;
}

bool vale(Queda queda, const QString& valor) {
    switch (queda) {
        case Queda::Vacia:
            return valor.isEmpty() || valor == u'0';
        case Queda::No:
            return valor == u'N';
        case Queda::Marca:
            return valor == u'X';
        case Queda::Cualquiera:
            break;
    }
    return true;
}

bool consta(const std::vector<Patrones>& efectos, const QString& formulario, const QString& control,
            const QString& propiedad, const QString& valor) {
    return std::ranges::any_of(efectos, [&](const Patrones& p) {
        return vale(p.queda, valor) && p.propiedad.match(propiedad).hasMatch() &&
               p.formulario.match(formulario).hasMatch() && p.control.match(control).hasMatch();
    });
}

}  // namespace

bool PuedeCambiar(const Paso& paso, const QString& propiedad, const QString& valor) {
    static const auto efectos = compilar(Efectos), alMostrar = compilar(AlMostrar);
    const auto* mando = MandoDe(paso.formulario, paso.control);
    if (mando && mando->propiedad == propiedad) return true;
    if (consta(efectos, paso.formulario, paso.control, propiedad, valor)) return true;
    return paso.despues != paso.formulario &&
           consta(alMostrar, paso.despues, QString(), propiedad, valor);
}

}  // namespace padral::pruebas
