#pragma once
// The queries on the catalogues as the program composes them: a text for each language and, for
// those with a key, what stands behind it. A key is put in as it stands.

#include <QStringView>

namespace padral::sql {

struct Consulta {
    QStringView castellano;
    QStringView euskera;
    /// Behind the key; a query without a key has none.
    QStringView final = u"";
};

inline constexpr Consulta CodigoEpigrafe{
    u"select EPICODEPI from TEpigrafes_2000 where EPIDEPCAS='",
    u"select EPICODEPI  from TEpigrafes_2000 where EPIDEPEUS='", u"'"};
inline constexpr Consulta DescripcionEpigrafe{
    u"select EPIDEPCAS from TEpigrafes_2000 where EPICODEPI='",
    u"select EPIDEPEUS from TEpigrafes_2000 where EPICODEPI='", u"'"};
inline constexpr Consulta DescActivEcon{u"select epidepcas from Tepigrafes_2000 where epicodepi='",
                                        u"select epidepeus from Tepigrafes_2000 where epicodepi='",
                                        u"'"};
inline constexpr Consulta CodigoFormaJuridica{
    u"select CODFORMA from TFormasJuridicas where DESCRIFORMACAS='",
    u"select CODFORMA from TFormasJuridicas where DESCRIFORMAEUS='", u"' ORDER BY CODFORMA"};
inline constexpr Consulta DescFormaJuridica{
    u"select descriformacas from TFormasJuridicas where codforma=",
    u"select descriformaeus from TFormasJuridicas where codforma="};
inline constexpr Consulta NombreProvincia{u"select T07_PRO_CAS from TProvincias where T07_PRO_ID=",
                                          u"select T07_PRO_EUS from TProvincias where T07_PRO_ID="};
inline constexpr Consulta DescripcionSiglas{u"select siglas_cas from TSiglas where Siglas_Codigo='",
                                            u"select siglas_eus from TSiglas where Siglas_Codigo='",
                                            u"'"};
inline constexpr Consulta CodigoCausa{u"select CODCAUSA from TCausasCese where CAUSACAS='",
                                      u"select CODCAUSA  from TCausasCese where CAUSAEUS='", u"'"};
inline constexpr Consulta CausaCese{u"Select CAUSACAS From TCausasCese WHERE  CODCAUSA='",
                                    u"Select CAUSAEUS From TCausasCese WHERE  CODCAUSA='", u"'"};
inline constexpr Consulta Municipio{u"Select T08_NOMMUN From TMunicipios where T08_CODMUN=",
                                    u"Select T08_NOMMUN From TMunicipios where T08_CODMUN="};

inline constexpr Consulta ListaSiglas{
    u"Select SIGLAS_CODIGO, SIGLAS_CAS From TSIGLAS ORDER BY SIGLAS_CAS",
    u"Select SIGLAS_CODIGO, SIGLAS_EUS From TSIGLAS ORDER BY SIGLAS_EUS"};
inline constexpr Consulta ListaProvincias{
    u"Select T07_PRO_ID, T07_PRO_CAS From TProvincias Order By T07_PRO_CAS",
    u"Select T07_PRO_ID, T07_PRO_EUS From TProvincias Order By T07_PRO_EUS"};
inline constexpr Consulta ListaMunicipios{
    u"Select T08_CODMUN, T08_NOMMUN From TMunicipios Order By T08_NOMMUN",
    u"Select T08_CODMUN, T08_NOMMUN From TMunicipios Order By T08_NOMMUN"};
inline constexpr Consulta Epigrafes{
    u"Select EPIDEPCAS From TEpigrafes_2000 WHERE NOT(EPICODEPI='9999999') ORDER BY "
    u"EPIDEPCAS,EPICODEPI",
    u"Select EPIDEPEUS From TEpigrafes_2000 WHERE NOT(EPICODEPI='9999999') ORDER BY "
    u"EPIDEPEUS,EPICODEPI"};
inline constexpr Consulta EpigrafeSinActividad{
    u"Select EPIDEPCAS From TEpigrafes_2000 WHERE (EPICODEPI='9999999') ORDER BY "
    u"EPIDEPCAS,EPICODEPI",
    u"Select EPIDEPEUS From TEpigrafes_2000 WHERE (EPICODEPI='9999999') ORDER BY "
    u"EPIDEPEUS,EPICODEPI"};
inline constexpr Consulta FormasJuridicas{
    u"Select CODFORMA,LETDNI,DESCRIFORMACAS From TFormasJuridicas ORDER BY CODFORMA",
    u"Select CODFORMA,LETDNI,DESCRIFORMAEUS From TFormasJuridicas ORDER BY CODFORMA"};
inline constexpr Consulta MotivosCambio{u"Select MOTIVOCAS From TMotivoCambio ORDER BY CODIGO",
                                        u"Select MOTIVOEUS From TMotivoCambio ORDER BY CODIGO"};
// Without an order the rows come as they lie in the table, by row number, which is the order in
// which they were inserted: a refresh empties a table before it fills it, so that the row numbers
// start again, and the only index, that of the key, does not hold the texts.
inline constexpr Consulta CausasCese{u"Select CAUSACAS From TCausasCese",
                                     u"Select CAUSAEUS From TCausasCese"};

}  // namespace padral::sql
