#include "walk/walk_start.h"

#include <memory>

namespace padral::pruebas {

namespace {

constexpr qint32 Declarada = 20260131;
constexpr qint32 En2013 = 20131231, En2014 = 20141231, En2026 = 20260115;

QString l(const char16_t* texto) { return QString::fromUtf16(texto); }

/// Who declares, and what; a change of nothing but what the sections tell.
void identificar(cDeclaraciones& d, const char16_t* nif, const char16_t* tipo, qint32 fecha = 0) {
    auto& g = d.general;
    g.DNI = l(nif);
    g.NOMBRE = l(u"LASA ETXE");
    g.NumeroArchivo = l(u"REF") + g.DNI.left(4);
    g.FECHADECLARACION = Declarada;
    g.Causa1 = l(tipo);
    if (fecha != 0) g.FechaModificacion(fecha);
    g.ElMismo = l(u"X");
    g.FirmaEnCalidadDe = l(u"EL MISMO");
}

void firmarPorOtro(cDatosGenerales& g) {
    g.ElMismo.clear();
    g.FirmaEnCalidadDe = l(u"ADMINISTRADORA");
    g.DNIRepresentante = l(u"12345678Z");
    g.NombreRepresentante = l(u"AGIRRE SOTO");
}

void domiciliar(cDeclaraciones& d) {
    auto& fiscal = d.apartado2.Fis;
    fiscal.SiglasDomicilio = l(u"CL");
    fiscal.NombreDomicilio = l(u"ERROTA ZAHARRA");
    fiscal.Numero = 12;
    fiscal.CodigoPostal = 20500;
    fiscal.CodigoMunicipio = 1;
    fiscal.Telefono = 943112233;
    auto& aviso = d.apartado2.Not;
    aviso = fiscal;
    aviso.CodigoPostal = 1005;
    aviso.CodigoMunicipio = 0;
    aviso.NombreMunicipio = l(u"VITORIA");
    d.apartado2.ElMismoAct = l(u"X");
    d.apartado2.Lleno = true;
}

void censar(cDeclaraciones& d, qint32 inicio = 0) {
    auto& a = d.apartado3;
    a.ResidenteKelmaria = l(u"S");
    a.ActivEcon = l(u"1.6912");
    a.ListaEpigrafe = d.estado.catalogo.ObtenerDescripcionEpigrafe(a.ActivEcon);
    a.FechaInicio(inicio);
    a.PorcenDeduccion = 12;
    a.IdiomaPref = l(u"E");
    a.MedioPref = l(u"P");
    a.Correo = l(u"A");
    a.DirCorreo = l(u"ane@etxea.eus");
    a.Fax = l(u"B");
    a.numFax = 943000111;
    a.Movil = l(u"A");
    a.numMovil = 600000222;
    a.Consentimiento = l(u"S");
    a.Lleno = true;
}

void constituir(cDeclaraciones& d) {
    auto& a = d.apartado3;
    a.CodigoFormaJuridica = 1;
    a.DescripcionFormaJuridica =
        d.estado.SegunIdioma(l(u"SOCIEDAD ANONIMA - A"), l(u"SOZIETATE ANONIMOA - A"));
    a.Anagrama = l(u"IBAIALDE");
    a.FechaCierre = 1231;
}

/// Every answer no, but those.
void responder(cApartado5& a, std::initializer_list<Letra RespuestasApartado5::*> afirmativas) {
    for (const auto& c : TablaApartado5()) c.escribir(a, l(u"N"));
    for (const auto respuesta : afirmativas) a.*respuesta = l(u"S");
    a.APARTADO5LLENO = true;
}

void socio(cApartado4& a) {
    a.IVASOCIO = l(u"S");
    a.NIF = l(u"E12345674");
    a.NOMBRE = l(u"LASA ANAIAK");
    a.Lleno = true;
}

using A5 = RespuestasApartado5;

void persona(cDeclaraciones& d) {
    identificar(d, u"12345678Z", u"M", En2026);
    domiciliar(d);
    censar(d);
    d.apartado3.ActVenMov = l(u"X");
    d.apartado4.IRPFDIRECT = l(u"O");
    d.apartado4.IVAEXPORT = l(u"B");
    d.apartado4.IVACUOADU = l(u"O");
    socio(d.apartado4);
    responder(d.apartado5, {&A5::IRPFDIRECTSIMPLIF, &A5::IVA, &A5::GENERAL, &A5::SATISRENDTRAB});
    d.apartado7.LimSupPais[0] = l(u"S");
    d.apartado7.DestRevocPais[24] = l(u"D");
    d.apartado7.Agric = l(u"S");
    d.apartado7.Lleno = true;
    d.anexoII.Aplicacion = l(u"S");
    d.anexoII.Lleno = true;
}

void personaDeAntes(cDeclaraciones& d) {
    identificar(d, u"X1234567L", u"M", En2013);
    domiciliar(d);
    censar(d);
    d.apartado4.IRPFOBJET = l(u"O");
    d.apartado4.Lleno = true;
    responder(d.apartado5, {&A5::IRPFOBJETIVA, &A5::IVA, &A5::GENERAL});
    d.anexoII.OpcionApl = l(u"R");
    d.anexoII.PORCENTAJE = 45;
    d.anexoII.Lleno = true;
}

void empresa(cDeclaraciones& d) {
    identificar(d, u"A12345674", u"M", En2026);
    firmarPorOtro(d.general);
    domiciliar(d);
    censar(d);
    constituir(d);
    d.apartado4.IVABIENES = l(u"O");
    socio(d.apartado4);
    responder(d.apartado5, {&A5::SOCIEDADES, &A5::IVA, &A5::GENERAL, &A5::BIENESMARGEN});
}

void inicio(cDeclaraciones& d) {
    identificar(d, u"00000014Z", u"I");
    censar(d, En2014);
    responder(d.apartado5, {&A5::IRPFDIRECTA, &A5::NOEXENTAS});
}

void previa(cDeclaraciones& d) {
    // The identifier is what it asks for.
    identificar(d, u"", u"P");
    d.general.Causa2 = l(u"A");
    d.general.FechaConstitucion = En2014;
    domiciliar(d);
    censar(d, En2026);
}

void cese(cDeclaraciones& d) {
    identificar(d, u"12345678Z", u"C");
    d.apartado6.FECHACESE = En2026;
    d.apartado6.CAUSA = 99;
    d.apartado6.DESCRIPCIONCAUSA = l(u"JUBILACION");
    d.apartado6.Lleno = true;
}

void participar(cDeclaraciones& d, const char16_t* nif, const char16_t* nombre, float parte) {
    auto p = std::make_shared<cParticipes>(d.participantes, d.estado.RutaBDModificacion);
    p->InicializarDatos();
    p->Modo = l(u"A");
    p->DNI = l(nif);
    p->NOMBRE = l(nombre);
    p->SiglasDom = l(u"CL");
    p->NombreVia = l(u"MAYOR");
    p->CodPostal = 20500;
    p->CodMun = 1;
    p->PorcenPart = parte;
    p->EdIRPF = l(u"O");
    d.participantes.colParticipes.push_back(p);
    d.IncrementarNumParti();
}

void comunidad(cDeclaraciones& d) {
    identificar(d, u"E12345674", u"M", En2026);
    firmarPorOtro(d.general);
    d.general.MotivoCambio = 20;
    d.general.NombreAnterior = l(u"ALDABE ETA SEMEAK");
    participar(d, u"12345678Z", u"ANE", 60);
    participar(d, u"X1234567L", u"JON", 40);
    d.anexoII.TerritorioHistorico = l(u"S");
    d.anexoII.ModalidadEstablecimiento = l(u"B");
    d.anexoII.NIFRepresentante = l(u"12345678Z");
    d.anexoII.NombreRepresentante = l(u"AGIRRE SOTO");
    d.anexoII.DomicilioRepresentante = l(u"MAYOR 1");
    d.anexoII.CodigoProvincia = 20;
    d.anexoII.CodigoMunicipio = 1;
    d.anexoII.NombreMunicipio = l(u"ALDABARRI");
    d.anexoII.Lleno = true;
}

}  // namespace

QList<qint32> GuardarPreparadas(cDeclaraciones& d) {
    QList<qint32> claves;
    for (const auto& preparar :
         {persona, personaDeAntes, empresa, inicio, previa, cese, comunidad}) {
        d.InicializarDeclaracion();
        d.general.FechaModificacion(0);
        d.csde = 0;
        d.Modo = l(u"A");
        preparar(d);
        d.MarcarApartados();
        claves << d.GuardarDeclaracion();
        d.GuardarParticipes(claves.last());
    }
    d.InicializarDeclaracion();
    d.LimpiarModos();
    return claves;
}

}  // namespace padral::pruebas
