#include "store/schema.h"

namespace padral::store {

namespace {

constexpr auto Int = ColumnType::Integer;
constexpr auto Real = ColumnType::Real;
constexpr auto Text = ColumnType::Text;
constexpr auto Mark = ColumnType::Mark;

// clang-format off
constexpr std::array<Column, 18> GeneralColumns{{
    {"csde", Int}, {"DNI", Text}, {"NOMBRE", Text},
    {"NumeroArchivo", Text}, {"FECHADECLARACION", Int}, {"FechaConstitucion", Int},
    {"FechaInscripcion", Int}, {"Causa1", Text}, {"Causa2", Text},
    {"DNIAnterior", Text}, {"NombreAnterior", Text}, {"MotivoCambio", Int},
    {"APARTADOS", Text}, {"FechaModificacion", Int}, {"DNIRepresentante", Text},
    {"NombreRepresentante", Text}, {"FirmaEnCalidadDe", Text}, {"ElMismo", Text},
}};

constexpr std::array<Column, 47> Section2Columns{{
    {"SiglasDomicilioFis", Text}, {"NombreDomicilioFis", Text},
    {"NumeroFis", Int}, {"LetraFis", Text},
    {"EscaleraFis", Text}, {"PisoFis", Text},
    {"ManoFis", Text}, {"CodigoPostalFis", Int},
    {"CodigoMunicipioFis", Int}, {"NombreMunicipioFis", Text},
    {"TelefonoFis", Int}, {"SiglasDomicilioAct", Text},
    {"NombreDomicilioAct", Text}, {"NumeroAct", Int},
    {"LetraAct", Text}, {"EscaleraAct", Text},
    {"PisoAct", Text}, {"ManoAct", Text},
    {"CodigoPostalAct", Int}, {"CodigoMunicipioAct", Int},
    {"NombreMunicipioAct", Text}, {"TelefonoAct", Int},
    {"ElMismoAct", Text}, {"SiglasDomicilioSoc", Text},
    {"NombreDomicilioSoc", Text}, {"NumeroSoc", Int},
    {"LetraSoc", Text}, {"EscaleraSoc", Text},
    {"PisoSoc", Text}, {"ManoSoc", Text},
    {"CodigoPostalSoc", Int}, {"CodigoMunicipioSoc", Int},
    {"NombreMunicipioSoc", Text}, {"TelefonoSoc", Int},
    {"ElMismoSoc", Text}, {"SiglasDomicilioNot", Text},
    {"NombreDomicilioNot", Text}, {"NumeroNot", Int},
    {"LetraNot", Text}, {"EscaleraNot", Text},
    {"PisoNot", Text}, {"ManoNot", Text},
    {"CodigoPostalNot", Int}, {"CodigoMunicipioNot", Int},
    {"NombreMunicipioNot", Text}, {"TelefonoNot", Int},
    {"ElMismoNot", Text},
}};

constexpr std::array<Column, 23> Section3Columns{{
    {"ResidenteKelmaria", Mark}, {"PorcenDeduccion", Int},
    {"FechaInicio", Int}, {"ActivEcon", Text},
    {"ListaEpigrafe", Text}, {"CodigoFormaJuridica", Int},
    {"DescripcionFormaJuridica", Text}, {"Anagrama", Text},
    {"FechaCierre", Int}, {"SocPat", Text},
    {"IdiomaPref", Mark}, {"MedioPref", Mark},
    {"Correo", Mark}, {"DirCorreo", Text},
    {"Fax", Mark}, {"numFax", Int},
    {"Movil", Mark}, {"numMovil", Int},
    {"Fijo", Mark}, {"numFijo", Int},
    {"Consentimiento", Mark}, {"Revocacion", Mark},
    {"ActVenMov", Text},
}};

constexpr std::array<Column, 14> Section4Columns{{
    {"IRPFOBJET", Mark}, {"IRPFDIRECT", Mark}, {"IVAAGRIC", Mark},
    {"IVASIMPLIF", Mark}, {"IVAEXPORT", Mark}, {"IVAEXPORTINTRA", Mark},
    {"IVAAGENCIAS", Mark}, {"IVABIENES", Mark}, {"IVASOCIO", Mark},
    {"NIF", Mark}, {"NOMBRE", Mark}, {"SONF", Mark},
    {"IVACAJA", Mark}, {"IVACUOADU", Mark},
}};

constexpr std::array<Column, 28> Section5Columns{{
    {"GRANEMPRESA", Mark}, {"SOCIEDADES", Mark}, {"ADMINISTRACIONES", Mark},
    {"EXENTASOCI", Mark}, {"ART117", Mark}, {"COOPERATIVA", Mark},
    {"CONSOLIDACION", Mark}, {"DOMINANTE", Mark}, {"SATISRENDTRAB", Mark},
    {"SATISRENDARREN", Mark}, {"IRPFDIRECTA", Mark}, {"IRPFOBJETIVA", Mark},
    {"IRPFDIRECTSIMPLIF", Mark}, {"IVA", Mark}, {"GENERAL", Mark},
    {"RECARGO", Mark}, {"AGENCIASOPERACION", Mark}, {"AGENCIASGLOBAL", Mark},
    {"BIENESUSADOS", Mark}, {"BIENESMARGEN", Mark}, {"Agric", Mark},
    {"SIMPLIF", Mark}, {"OPEXSINDCHO", Mark}, {"NORECARGO", Mark},
    {"NOAGRIC", Mark}, {"NOEXENTAS", Mark}, {"NOCONCIERTO", Mark},
    {"IVACAJA", Mark},
}};

constexpr std::array<Column, 4> Section6Columns{{
    {"FECHACESE", Int}, {"CAUSA", Int},
    {"DESCRIPCIONCAUSA", Mark}, {"FechaInscripcion", Int},
}};

constexpr std::array<Column, 59> Section7Columns{{
    {"LimSupPais1", Text}, {"DestRevocPais1", Text},
    {"LimSupPais2", Text}, {"DestRevocPais2", Text},
    {"LimSupPais3", Text}, {"DestRevocPais3", Text},
    {"LimSupPais4", Text}, {"DestRevocPais4", Text},
    {"LimSupPais5", Text}, {"DestRevocPais5", Text},
    {"LimSupPais6", Text}, {"DestRevocPais6", Text},
    {"LimSupPais7", Text}, {"DestRevocPais7", Text},
    {"LimSupPais8", Text}, {"DestRevocPais8", Text},
    {"LimSupPais9", Text}, {"DestRevocPais9", Text},
    {"LimSupPais10", Text}, {"DestRevocPais10", Text},
    {"LimSupPais11", Text}, {"DestRevocPais11", Text},
    {"LimSupPais12", Text}, {"DestRevocPais12", Text},
    {"LimSupPais13", Text}, {"DestRevocPais13", Text},
    {"LimSupPais14", Text}, {"DestRevocPais14", Text},
    {"LimSupPais15", Text}, {"DestRevocPais15", Text},
    {"LimSupPais16", Text}, {"DestRevocPais16", Text},
    {"LimSupPais17", Text}, {"DestRevocPais17", Text},
    {"LimSupPais18", Text}, {"DestRevocPais18", Text},
    {"LimSupPais19", Text}, {"DestRevocPais19", Text},
    {"LimSupPais20", Text}, {"DestRevocPais20", Text},
    {"LimSupPais21", Text}, {"DestRevocPais21", Text},
    {"LimSupPais22", Text}, {"DestRevocPais22", Text},
    {"LimSupPais23", Text}, {"DestRevocPais23", Text},
    {"LimSupPais24", Text}, {"DestRevocPais24", Text},
    {"LimSupPais25", Text}, {"DestRevocPais25", Text},
    {"LimSupPais26", Text}, {"DestRevocPais26", Text},
    {"LimSupPais27", Text}, {"DestRevocPais27", Text},
    {"Agric", Text}, {"Exentos", Text},
    {"NoEmpresarios", Text}, {"MasLimEuros", Text},
    {"TributDestino", Text},
}};

constexpr std::array<Column, 19> AnnexIIColumns{{
    {"DireccionDom", Text}, {"PoblacionDom", Text},
    {"Nacionalidad", Text}, {"FormaJuridica", Text},
    {"TerritorioHistorico", Text}, {"ModalidadEstablecimiento", Text},
    {"OtrosEstablecimientos", Text}, {"NIFRepresentante", Text},
    {"NombreRepresentante", Text}, {"NacionalidadRepresentante", Text},
    {"DomicilioRepresentante", Text}, {"CodigoMunicipio", Int},
    {"NombreMunicipio", Text}, {"CodigoProvincia", Int},
    {"Obligado", Text}, {"Establecimientos", Text},
    {"Aplicacion", Text}, {"OpcionApl", Text},
    {"PORCENTAJE", Int},
}};

constexpr std::array<Column, 20> ParticipantColumns{{
    {"cspa", Int}, {"csde", Int}, {"DNI", Mark},
    {"NOMBRE", Mark}, {"SiglasDom", Mark}, {"NombreVia", Mark},
    {"Numero", Int}, {"Letra", Mark}, {"Escalera", Mark},
    {"Piso", Mark}, {"Mano", Mark}, {"Telefono", Int},
    {"CodPostal", Int}, {"CodMun", Int}, {"NombMun", Text},
    {"PorcenPart", Real}, {"EdIRPF", Mark}, {"EqIRPF", Mark},
    {"SimplifIVA", Mark}, {"Agric", Mark},
}};
// clang-format on

}  // namespace

const RecordTable& GeneralData() {
    static constexpr RecordTable table{"TDeclaraciones", GeneralColumns};
    return table;
}

const std::array<RecordTable, 7>& SectionTables() {
    static constexpr std::array<RecordTable, 7> tables{{
        {"TApartado2", Section2Columns},
        {"TApartado3", Section3Columns},
        {"TApartado4", Section4Columns},
        {"TApartado5", Section5Columns},
        {"TApartado6", Section6Columns},
        {"TApartado7", Section7Columns},
        {"TAnexoII", AnnexIIColumns},
    }};
    return tables;
}

const RecordTable& Participants() {
    static constexpr RecordTable table{"TParticipes", ParticipantColumns};
    return table;
}

}  // namespace padral::store
