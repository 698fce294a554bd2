#include "store/schema.h"

#include <gtest/gtest.h>

#include <set>

namespace padral::store {
namespace {

const RecordTable& table(std::string_view name) {
    if (name == GeneralData().name) return GeneralData();
    if (name == Participants().name) return Participants();
    for (const RecordTable& section : SectionTables())
        if (section.name == name) return section;
    throw std::out_of_range("no such table");
}

struct Size {
    const char* table;
    std::size_t columns;
};

TEST(Schema, HoldsEveryValueOfEveryRecord) {
    for (const Size& size : {Size{"TDeclaraciones", 18},
                             {"TApartado2", 47},
                             {"TApartado3", 23},
                             {"TApartado4", 14},
                             {"TApartado5", 28},
                             {"TApartado6", 4},
                             {"TApartado7", 59},
                             {"TAnexoII", 19},
                             {"TParticipes", 20}})
        EXPECT_EQ(table(size.table).columns.size(), size.columns) << size.table;
}

TEST(Schema, NamesEachColumnOnce) {
    for (const char* name : {"TDeclaraciones", "TApartado2", "TApartado3", "TApartado4",
                             "TApartado5", "TApartado6", "TApartado7", "TAnexoII", "TParticipes"}) {
        std::set<std::string_view> names;
        for (const Column& column : table(name).columns) names.insert(column.name);
        EXPECT_EQ(names.size(), table(name).columns.size()) << name;
    }
}

constexpr auto Int = ColumnType::Integer;
constexpr auto Real = ColumnType::Real;
constexpr auto Text = ColumnType::Text;
constexpr auto Mark = ColumnType::Mark;

struct Position {
    const char* table;
    std::size_t position;
    const char* name;
    ColumnType type;
};

class Positions : public ::testing::TestWithParam<Position> {};

TEST_P(Positions, StandWhereTheRecordHasThem) {
    const Position& expected = GetParam();
    const Column& column = table(expected.table).columns[expected.position];
    EXPECT_EQ(column.name, expected.name);
    EXPECT_EQ(column.type, expected.type);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Records, Positions, ::testing::Values(
    Position{"TDeclaraciones", 0, "csde", Int}, Position{"TDeclaraciones", 1, "DNI", Text},
    Position{"TDeclaraciones", 2, "NOMBRE", Text},
    Position{"TDeclaraciones", 3, "NumeroArchivo", Text},
    Position{"TDeclaraciones", 4, "FECHADECLARACION", Int},
    Position{"TDeclaraciones", 5, "FechaConstitucion", Int},
    Position{"TDeclaraciones", 6, "FechaInscripcion", Int},
    Position{"TDeclaraciones", 7, "Causa1", Text}, Position{"TDeclaraciones", 8, "Causa2", Text},
    Position{"TDeclaraciones", 9, "DNIAnterior", Text},
    Position{"TDeclaraciones", 10, "NombreAnterior", Text},
    Position{"TDeclaraciones", 11, "MotivoCambio", Int},
    Position{"TDeclaraciones", 12, "APARTADOS", Text},
    Position{"TDeclaraciones", 13, "FechaModificacion", Int},
    Position{"TDeclaraciones", 14, "DNIRepresentante", Text},
    Position{"TDeclaraciones", 15, "NombreRepresentante", Text},
    Position{"TDeclaraciones", 16, "FirmaEnCalidadDe", Text},
    Position{"TDeclaraciones", 17, "ElMismo", Text},
    Position{"TApartado2", 0, "SiglasDomicilioFis", Text},
    Position{"TApartado2", 2, "NumeroFis", Int}, Position{"TApartado2", 7, "CodigoPostalFis", Int},
    Position{"TApartado2", 10, "TelefonoFis", Int},
    Position{"TApartado2", 11, "SiglasDomicilioAct", Text},
    Position{"TApartado2", 22, "ElMismoAct", Text},
    Position{"TApartado2", 23, "SiglasDomicilioSoc", Text},
    Position{"TApartado2", 31, "CodigoMunicipioSoc", Int},
    Position{"TApartado2", 34, "ElMismoSoc", Text},
    Position{"TApartado2", 44, "NombreMunicipioNot", Text},
    Position{"TApartado2", 46, "ElMismoNot", Text},
    Position{"TApartado3", 0, "ResidenteKelmaria", Mark},
    Position{"TApartado3", 1, "PorcenDeduccion", Int},
    Position{"TApartado3", 3, "ActivEcon", Text},
    Position{"TApartado3", 8, "FechaCierre", Int}, Position{"TApartado3", 9, "SocPat", Text},
    Position{"TApartado3", 13, "DirCorreo", Text}, Position{"TApartado3", 19, "numFijo", Int},
    Position{"TApartado3", 22, "ActVenMov", Text},
    Position{"TApartado4", 0, "IRPFOBJET", Mark}, Position{"TApartado4", 8, "IVASOCIO", Mark},
    Position{"TApartado4", 9, "NIF", Mark}, Position{"TApartado4", 13, "IVACUOADU", Mark},
    Position{"TApartado5", 0, "GRANEMPRESA", Mark}, Position{"TApartado5", 13, "IVA", Mark},
    Position{"TApartado5", 20, "Agric", Mark}, Position{"TApartado5", 27, "IVACAJA", Mark},
    Position{"TApartado6", 0, "FECHACESE", Int}, Position{"TApartado6", 1, "CAUSA", Int},
    Position{"TApartado6", 2, "DESCRIPCIONCAUSA", Mark},
    Position{"TApartado6", 3, "FechaInscripcion", Int},
    Position{"TApartado7", 0, "LimSupPais1", Text}, Position{"TApartado7", 1, "DestRevocPais1", Text},
    Position{"TApartado7", 48, "LimSupPais25", Text},
    Position{"TApartado7", 53, "DestRevocPais27", Text}, Position{"TApartado7", 54, "Agric", Text},
    Position{"TApartado7", 58, "TributDestino", Text},
    Position{"TAnexoII", 0, "DireccionDom", Text}, Position{"TAnexoII", 11, "CodigoMunicipio", Int},
    Position{"TAnexoII", 13, "CodigoProvincia", Int}, Position{"TAnexoII", 18, "PORCENTAJE", Int},
    Position{"TParticipes", 0, "cspa", Int}, Position{"TParticipes", 1, "csde", Int},
    Position{"TParticipes", 2, "DNI", Mark}, Position{"TParticipes", 14, "NombMun", Text},
    Position{"TParticipes", 15, "PorcenPart", Real}, Position{"TParticipes", 19, "Agric", Mark}));
// clang-format on

}  // namespace
}  // namespace padral::store
