#include "store/catalogue_schema.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <array>
#include <string>

#include "store/authority.h"
#include "store/collation.h"

namespace padral::store {

namespace {

using enum CatalogueColumn;

constexpr std::array<CatalogueField, 3> Activities{
    {{"EPICODEPI", TextKey}, {"EPIDEPCAS", Text}, {"EPIDEPEUS", Text}}};
constexpr std::array<CatalogueField, 4> LegalForms{{{"CODFORMA", NumberKey},
                                                    {"LETDNI", Text},
                                                    {"DESCRIFORMACAS", Text},
                                                    {"DESCRIFORMAEUS", Text}}};
constexpr std::array<CatalogueField, 3> Provinces{
    {{"T07_PRO_ID", NumberKey}, {"T07_PRO_CAS", Text}, {"T07_PRO_EUS", Text}}};
constexpr std::array<CatalogueField, 2> Municipalities{
    {{"T08_CODMUN", NumberKey}, {"T08_NOMMUN", Text}}};
constexpr std::array<CatalogueField, 3> StreetTypes{
    {{"Siglas_Codigo", TextKey}, {"siglas_cas", Text}, {"siglas_eus", Text}}};
constexpr std::array<CatalogueField, 3> Motives{
    {{"CODIGO", TextKey}, {"MOTIVOCAS", Text}, {"MOTIVOEUS", Text}}};
constexpr std::array<CatalogueField, 3> Causes{
    {{"CODCAUSA", TextKey}, {"CAUSACAS", Text}, {"CAUSAEUS", Text}}};

constexpr std::array<CatalogueTable, 7> Tables{{
    {"TEpigrafes_2000", Activities},
    {"TFormasJuridicas", LegalForms},
    {"TProvincias", Provinces},
    {"TMunicipios", Municipalities},
    {"TSiglas", StreetTypes},
    {"TMotivoCambio", Motives},
    {"TCausasCese", Causes},
}};

// Only keys are indexed, and only by the comparison that is built into the engine: an index in
// Spanish order would depend on the version of the collation rules.
std::string fieldSql(const CatalogueField& field) {
    std::string name(field.name);
    name += ' ';
    switch (field.type) {
        case NumberKey:
            return name + "INTEGER PRIMARY KEY";
        case TextKey:
            return name + "TEXT NOT NULL COLLATE NOCASE PRIMARY KEY";
        case Text:
            break;
    }
    return name + "TEXT NOT NULL DEFAULT '' COLLATE " + SpanishCollation;
}

}  // namespace

std::span<const CatalogueTable> CatalogueTables() { return Tables; }

void CreateCatalogueTables(SQLite::Database& db) {
    for (const CatalogueTable& table : Tables) {
        std::string sql = "CREATE TABLE \"" + std::string(table.name) + "\" (";
        for (const CatalogueField& field : table.fields) {
            if (&field != &table.fields.front()) sql += ", ";
            sql += fieldSql(field);
        }
        db.exec(sql + ") STRICT");
    }
    db.exec(
        "CREATE TABLE TGENERAL (URLAct TEXT NOT NULL, FECMIN INTEGER NOT NULL,"
        " FECMAX INTEGER NOT NULL, FECDECMIN INTEGER NOT NULL,"
        " BACKUP_TVC TEXT NOT NULL DEFAULT '') STRICT");
    SQLite::Statement row(
        db, "INSERT INTO TGENERAL (URLAct, FECMIN, FECMAX, FECDECMIN) VALUES (?, ?, ?, ?)");
    row.bind(1, authority::UpdateAddress);
    row.bind(2, authority::LowestDate);
    row.bind(3, authority::HighestDate);
    row.bind(4, authority::LowestDeclarationDate);
    row.exec();
}

}  // namespace padral::store
