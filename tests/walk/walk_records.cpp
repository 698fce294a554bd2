#include "walk/walk_records.h"

#include <initializer_list>
#include <utility>

namespace padral::pruebas {

namespace {

using Valores = std::initializer_list<std::pair<const char*, QString>>;

QString numero(qint64 valor) { return QString::number(valor); }
QString porcentaje(float valor) { return QString::number(static_cast<double>(valor), 'f', 2); }

class Apuntes {
public:
    explicit Apuntes(Retrato& retrato, QString prefijo)
        : retrato_(retrato), prefijo_(std::move(prefijo)) {}
    void Anotar(const Valores& valores, const char* sufijo = "") {
        for (const auto& [nombre, valor] : valores)
            Anotar(QString::fromLatin1(nombre) + QString::fromLatin1(sufijo), valor);
    }
    void Anotar(const QString& nombre, const QString& valor) {
        retrato_[prefijo_ + nombre] = SinRelleno(valor);
    }

private:
    Retrato& retrato_;
    QString prefijo_;
};

void anotarGenerales(Apuntes a, const cDatosGenerales& g) {
    a.Anotar({{"DNI", g.DNI},
              {"NOMBRE", g.NOMBRE},
              {"NumeroArchivo", g.NumeroArchivo},
              {"FECHADECLARACION", numero(g.FECHADECLARACION)},
              {"FechaConstitucion", numero(g.FechaConstitucion)},
              {"FechaInscripcion", numero(g.FechaInscripcion)},
              {"FechaModificacion", numero(g.FechaModificacion())},
              {"FECHAVIGOR", numero(g.FECHAVIGOR)},
              {"Causa1", g.Causa1},
              {"Causa2", g.Causa2},
              {"DNIAnterior", g.DNIAnterior},
              {"NombreAnterior", g.NombreAnterior},
              {"MotivoCambio", numero(g.MotivoCambio)},
              {"Apartado2", g.Apartado2},
              {"Apartado3", g.Apartado3},
              {"Apartado4", g.Apartado4},
              {"Apartado5", g.Apartado5},
              {"Apartado6", g.Apartado6},
              {"Apartado7", g.Apartado7},
              {"AnexoI", g.AnexoI},
              {"AnexoII", g.AnexoII},
              {"DNIRepresentante", g.DNIRepresentante},
              {"NombreRepresentante", g.NombreRepresentante},
              {"FirmaEnCalidadDe", g.FirmaEnCalidadDe},
              {"ElMismo", g.ElMismo}});
}

void anotarDomicilio(Apuntes& a, const BloqueDireccion& b, const char* sufijo) {
    a.Anotar({{"SiglasDomicilio", b.SiglasDomicilio},
              {"DescripcionSiglas", b.DescripcionSiglas},
              {"NombreDomicilio", b.NombreDomicilio},
              {"Numero", numero(b.Numero)},
              {"Letra", b.Letra},
              {"Escalera", b.Escalera},
              {"Piso", b.Piso},
              {"Mano", b.Mano},
              {"CodigoProvincia", numero(b.CodigoProvincia)},
              {"NombreProvincia", b.NombreProvincia},
              {"CodigoPostal", numero(b.CodigoPostal)},
              {"CodigoMunicipio", numero(b.CodigoMunicipio)},
              {"NombreMunicipio", b.NombreMunicipio},
              {"Telefono", numero(b.Telefono)}},
             sufijo);
}

void anotarApartado2(Apuntes a, const cApartado2& r) {
    anotarDomicilio(a, r.Fis, "Fis");
    anotarDomicilio(a, r.Soc, "Soc");
    anotarDomicilio(a, r.Act, "Act");
    anotarDomicilio(a, r.Not, "Not");
    a.Anotar(
        {{"ElMismoSoc", r.ElMismoSoc}, {"ElMismoAct", r.ElMismoAct}, {"ElMismoNot", r.ElMismoNot}});
}

void anotarApartado3(Apuntes a, const cApartado3& r) {
    a.Anotar({{"ResidenteKelmaria", r.ResidenteKelmaria},
              {"PorcenDeduccion", numero(r.PorcenDeduccion)},
              {"FechaInicio", numero(r.FechaInicio())},
              {"ActivEcon", r.ActivEcon},
              {"ListaEpigrafe", r.ListaEpigrafe},
              {"CodigoFormaJuridica", numero(r.CodigoFormaJuridica)},
              {"DescripcionFormaJuridica", r.DescripcionFormaJuridica},
              {"Anagrama", r.Anagrama},
              {"FechaCierre", numero(r.FechaCierre)},
              {"SocPat", r.SocPat},
              {"ActVenMov", r.ActVenMov},
              {"IdiomaPref", r.IdiomaPref},
              {"MedioPref", r.MedioPref},
              {"Correo", r.Correo},
              {"DirCorreo", r.DirCorreo},
              {"Fax", r.Fax},
              {"numFax", numero(r.numFax)},
              {"Movil", r.Movil},
              {"numMovil", numero(r.numMovil)},
              {"Fijo", r.Fijo},
              {"numFijo", numero(r.numFijo)},
              {"Consentimiento", r.Consentimiento},
              {"Revocacion", r.Revocacion}});
}

void anotarApartado4(Apuntes a, const cApartado4& r) {
    a.Anotar({{"IRPFOBJET", r.IRPFOBJET},
              {"IRPFDIRECT", r.IRPFDIRECT},
              {"IVAAGRIC", r.IVAAGRIC},
              {"IVASIMPLIF", r.IVASIMPLIF},
              {"IVAEXPORT", r.IVAEXPORT},
              {"IVAEXPORTINTRA", r.IVAEXPORTINTRA},
              {"IVAAGENCIAS", r.IVAAGENCIAS},
              {"IVABIENES", r.IVABIENES},
              {"IVASOCIO", r.IVASOCIO},
              {"NIF", r.NIF},
              {"NOMBRE", r.NOMBRE},
              {"SONF", r.SONF},
              {"IVACAJA", r.IVACAJA},
              {"IVACUOADU", r.IVACUOADU}});
}

void anotarApartado5(Apuntes a, const cApartado5& r) {
    a.Anotar({{"GRANEMPRESA", r.GRANEMPRESA},
              {"SOCIEDADES", r.SOCIEDADES},
              {"ADMINISTRACIONES", r.ADMINISTRACIONES},
              {"EXENTASOCI", r.EXENTASOCI},
              {"ART117", r.ART117},
              {"COOPERATIVA", r.COOPERATIVA},
              {"CONSOLIDACION", r.CONSOLIDACION},
              {"DOMINANTE", r.DOMINANTE},
              {"SATISRENDTRAB", r.SATISRENDTRAB},
              {"SATISRENDARREN", r.SATISRENDARREN},
              {"IRPFDIRECTA", r.IRPFDIRECTA},
              {"IRPFOBJETIVA", r.IRPFOBJETIVA},
              {"IRPFDIRECTSIMPLIF", r.IRPFDIRECTSIMPLIF},
              {"IVA", r.IVA},
              {"GENERAL", r.GENERAL},
              {"RECARGO", r.RECARGO},
              {"AGENCIASOPERACION", r.AGENCIASOPERACION},
              {"AGENCIASGLOBAL", r.AGENCIASGLOBAL},
              {"BIENESUSADOS", r.BIENESUSADOS},
              {"BIENESMARGEN", r.BIENESMARGEN},
              {"Agric", r.Agric},
              {"SIMPLIF", r.SIMPLIF},
              {"OPEXSINDCHO", r.OPEXSINDCHO},
              {"NORECARGO", r.NORECARGO},
              {"NOAGRIC", r.NOAGRIC},
              {"NOEXENTAS", r.NOEXENTAS},
              {"NOCONCIERTO", r.NOCONCIERTO},
              {"IVACAJA", r.IVACAJA}});
}

void anotarApartado6(Apuntes a, const cApartado6& r) {
    a.Anotar({{"FECHACESE", numero(r.FECHACESE)},
              {"CAUSA", numero(r.CAUSA)},
              {"DESCRIPCIONCAUSA", r.DESCRIPCIONCAUSA},
              {"FechaInscripcion", numero(r.FechaInscripcion)}});
}

void anotarApartado7(Apuntes a, const cApartado7& r) {
    for (std::size_t i = 0; i < r.LimSupPais.size(); ++i) {
        const QString sufijo = QString::number(i + 1);
        a.Anotar(QStringLiteral("LimSupPais") + sufijo, r.LimSupPais[i]);
        a.Anotar(QStringLiteral("DestRevocPais") + sufijo, r.DestRevocPais[i]);
    }
    a.Anotar({{"Agric", r.Agric},
              {"Exentos", r.Exentos},
              {"NoEmpresarios", r.NoEmpresarios},
              {"MasLimEuros", r.MasLimEuros},
              {"TributDestino", r.TributDestino}});
}

void anotarAnexoII(Apuntes a, const cAnexoII& r) {
    a.Anotar({{"DireccionDom", r.DireccionDom},
              {"PoblacionDom", r.PoblacionDom},
              {"Nacionalidad", r.Nacionalidad},
              {"FormaJuridica", r.FormaJuridica},
              {"TerritorioHistorico", r.TerritorioHistorico},
              {"ModalidadEstablecimiento", r.ModalidadEstablecimiento},
              {"OtrosEstablecimientos", r.OtrosEstablecimientos},
              {"NIFRepresentante", r.NIFRepresentante},
              {"NombreRepresentante", r.NombreRepresentante},
              {"NacionalidadRepresentante", r.NacionalidadRepresentante},
              {"DomicilioRepresentante", r.DomicilioRepresentante},
              {"CodigoMunicipio", numero(r.CodigoMunicipio)},
              {"NombreMunicipio", r.NombreMunicipio},
              {"CodigoProvincia", numero(r.CodigoProvincia)},
              {"NombreProvincia", r.NombreProvincia},
              {"Obligado", r.Obligado},
              {"Establecimientos", r.Establecimientos},
              {"Aplicacion", r.Aplicacion},
              {"OpcionApl", r.OpcionApl},
              {"PORCENTAJE", numero(r.PORCENTAJE)}});
}

void anotarParticipe(Apuntes a, const cParticipes& p) {
    a.Anotar({{"cspa", numero(p.cspa)},
              {"DNI", p.DNI},
              {"NOMBRE", p.NOMBRE},
              {"SiglasDom", p.SiglasDom},
              {"DESCRIPCIONVIA", p.DESCRIPCIONVIA},
              {"NombreVia", p.NombreVia},
              {"Numero", numero(p.Numero)},
              {"Letra", p.Letra},
              {"Escalera", p.Escalera},
              {"Piso", p.Piso},
              {"Mano", p.Mano},
              {"CodigoProvincia", numero(p.CodigoProvincia())},
              {"NombreProvincia", p.NombreProvincia},
              {"Telefono", numero(p.Telefono)},
              {"CodPostal", numero(p.CodPostal)},
              {"CodMun", numero(p.CodMun)},
              {"NombMun", p.NombMun},
              {"PorcenPart", porcentaje(p.PorcenPart)},
              {"EdIRPF", p.EdIRPF},
              {"EqIRPF", p.EqIRPF},
              {"SimplifIVA", p.SimplifIVA},
              {"Agric", p.Agric}});
}

/// Identifier, key and "E" for a deleted one: the same person may be there twice then.
QString quien(const cParticipes& p, const Retrato& retrato) {
    QString nombre =
        QStringLiteral("P.%1/%2%3.")
            .arg(p.DNI.recortado(), numero(p.cspa), p.Modo.recortado() == u'E' ? u"E" : u"");
    while (retrato.contains(nombre + QStringLiteral("DNI"))) nombre.insert(2, u'+');
    return nombre;
}

}  // namespace

Retrato Retratar(const cDeclaraciones& d) {
    Retrato retrato;
    anotarGenerales(Apuntes(retrato, QStringLiteral("G.")), d.general);
    anotarApartado2(Apuntes(retrato, QStringLiteral("2.")), d.apartado2);
    anotarApartado3(Apuntes(retrato, QStringLiteral("3.")), d.apartado3);
    anotarApartado4(Apuntes(retrato, QStringLiteral("4.")), d.apartado4);
    anotarApartado5(Apuntes(retrato, QStringLiteral("5.")), d.apartado5);
    anotarApartado6(Apuntes(retrato, QStringLiteral("6.")), d.apartado6);
    anotarApartado7(Apuntes(retrato, QStringLiteral("7.")), d.apartado7);
    anotarAnexoII(Apuntes(retrato, QStringLiteral("A.")), d.anexoII);
    for (const auto& p : d.participantes.colParticipes)
        anotarParticipe(Apuntes(retrato, quien(*p, retrato)), *p);
    if (d.participantes.ParticipeActual)
        anotarParticipe(Apuntes(retrato, QStringLiteral("PA.")), *d.participantes.ParticipeActual);
    return retrato;
}

Retrato Parte(const Retrato& retrato, const QString& prefijo) {
    Retrato parte;
    for (auto i = retrato.lowerBound(prefijo); i != retrato.end() && i.key().startsWith(prefijo);
         ++i)
        parte[i.key().mid(prefijo.size())] = i.value();
    return parte;
}

const QStringList& Apartados() {
    static const QStringList prefijos = {
        QStringLiteral("2."), QStringLiteral("3."), QStringLiteral("4."), QStringLiteral("5."),
        QStringLiteral("6."), QStringLiteral("7."), QStringLiteral("A.")};
    return prefijos;
}

bool EstaLleno(const cDeclaraciones& d, const QString& apartado) {
    const bool llenos[] = {
        d.apartado2.Lleno, d.apartado3.Lleno, d.apartado4.Lleno, d.apartado5.APARTADO5LLENO,
        d.apartado6.Lleno, d.apartado7.Lleno, d.anexoII.Lleno};
    return llenos[Apartados().indexOf(apartado)];
}

bool EstaModificado(const cDeclaraciones& d, const QString& apartado) {
    const bool cambiados[] = {d.apartado2.Modificaciones, d.apartado3.Modificaciones,
                              d.apartado4.MODIFAPARTADO4, d.apartado5.MODIFAPARTADO5,
                              d.apartado6.MODIFAPARTADO6, d.apartado7.Modificaciones,
                              d.anexoII.Modificaciones};
    return cambiados[Apartados().indexOf(apartado)];
}

}  // namespace padral::pruebas
