#pragma once
// Lines that break one rule of the catalogue rows each, for the files of CatalogueFiles, and
// neighbours of them that break none.

namespace padral::test::lines {

#define CAPITALS "must be capitals without accents, digits, blanks and , . : ; ( ) / + % & -"
#define LETTERS "must be letters, digits, blanks and , . : ; ( ) / -"

inline constexpr const char *Activities = "TEpigrafes_2000", *Forms = "TFormasJuridicas",
                            *Provinces = "TProvincias", *Municipalities = "TMunicipios",
                            *Streets = "TSiglas", *Motives = "TMotivoCambio",
                            *Causes = "TCausasCese";

/// A text in the place of a line of a file, and what is said of it there.
struct Line {
    const char* table;
    int line;
    const char *text, *what;
};

// clang-format off
inline constexpr Line BadLines[] = {
    {Activities, 2, "4.681,A B,C D", "EPICODEPI \"4.681\": must be 1, 2 or 3, a point and three to five digits"},
    {Activities, 2, "1.68A,A B,C D", "EPICODEPI \"1.68A\": must be 1, 2 or 3, a point and three to five digits"},
    {Activities, 2, "16810,A B,C D", "EPICODEPI \"16810\": must be 1, 2 or 3, a point and three to five digits"},
    {Activities, 2, "1.68,A B,C D", "EPICODEPI \"1.68\": must have 5 to 7 characters"},
    {Activities, 2, "1.681100,A B,C D", "EPICODEPI \"1.681100\": must have 5 to 7 characters"},
    {Activities, 3, "1.681,ABC,DEF", "EPICODEPI \"1.681\": already in line 2"},
    {Activities, 3, "1.682,HOTELES,DEF", "EPIDEPCAS \"HOTELES\": already in line 2"},
    {Activities, 3, "1.682,ABC,HOTELAK", "EPIDEPEUS \"HOTELAK\": already in line 2"},
    {Activities, 2, "1.681,AB,DEF", "EPIDEPCAS \"AB\": must have 3 to 60 characters"},
    {Activities, 2, "1.681,ABC,", "EPIDEPEUS \"\": must have 3 to 60 characters"},
    {Activities, 2, "1.681,HOTELeS,DEF", "EPIDEPCAS \"HOTELeS\": " CAPITALS},
    {Activities, 2, "1.681,BALCÓN,DEF", "EPIDEPCAS \"BALCÓN\": " CAPITALS},
    {Activities, 2, "1.681,ABC,D'EF", "EPIDEPEUS \"D'EF\": " CAPITALS},
    {Activities, 2, "1.681,\"A \"\"B\"\"\",DEF", "EPIDEPCAS \"A \"B\"\": " CAPITALS},
    {Activities, 2, "1.681,#ABC,DEF", "EPIDEPCAS \"#ABC\": " CAPITALS},
    {Activities, 2, "1.681,-ABC,DEF", "EPIDEPCAS \"-ABC\": " CAPITALS},
    {Activities, 2, "1.681, ABC,DEF", "EPIDEPCAS \" ABC\": has a blank too many"},
    {Activities, 2, "1.681,ABC,DEF ", "EPIDEPEUS \"DEF \": has a blank too many"},
    {Activities, 2, "1.681,A  B,DEF", "EPIDEPCAS \"A  B\": has a blank too many"},
    {Activities, 2, "1.681,A\tB,DEF", "EPIDEPCAS \"A\tB\": has a blank too many"},
    {Activities, 4, "1.999,ABC,DEF", "no row \"9999999\""},
    {Activities, 4, "9999999,OTRA,JARDUERARIK GABE", "EPIDEPCAS \"OTRA\": must be \"SIN ACTIVIDAD\" in this row"},
    {Activities, 4, "9999999,SIN ACTIVIDAD,BESTE", "EPIDEPEUS \"BESTE\": must be \"JARDUERARIK GABE\" in this row"},
    {Forms, 2, "01,A,SOCIEDAD - A,SOZIETATEA - A", "CODFORMA \"01\": must be a number without zeros in front"},
    {Forms, 2, "x,A,SOCIEDAD - A,SOZIETATEA - A", "CODFORMA \"x\": must be a number without zeros in front"},
    {Forms, 2, "0,A,SOCIEDAD - A,SOZIETATEA - A", "CODFORMA \"0\": must be from 1 to 90"},
    {Forms, 2, "91,A,SOCIEDAD - A,SOZIETATEA - A", "CODFORMA \"91\": must be from 1 to 90"},
    {Forms, 3, "1,E,COMUNIDAD - E,ERKIDEGOA - E", "CODFORMA \"1\": already in line 2"},
    {Forms, 2, "1,I,SOCIEDAD - I,SOZIETATEA - I", "LETDNI \"I\": must be the first letter of the identifiers of entities"},
    {Forms, 2, "1,X,SOCIEDAD - X,SOZIETATEA - X", "LETDNI \"X\": must be the first letter of the identifiers of entities"},
    {Forms, 2, "1,a,SOCIEDAD - A,SOZIETATEA - A", "LETDNI \"a\": must be the first letter of the identifiers of entities"},
    {Forms, 2, "1,AB,SOCIEDAD - A,SOZIETATEA - A", "LETDNI \"AB\": must have 0 to 1 characters"},
    {Forms, 2, "1,B,SOCIEDAD - A,SOZIETATEA - B", "\"SOCIEDAD - A\" must end in its letter B"},
    {Forms, 2, "1,B,SOCIEDAD - B,SOZIETATEA", "\"SOZIETATEA\" must end in its letter B"},
    {Forms, 2, "1,,SOCIEDAD,SOZIETATEA", "LETDNI must be empty in row 90 and in no other"},
    {Forms, 4, "90,S,OTROS,BESTE BATZUK - S", "LETDNI must be empty in row 90 and in no other"},
    {Forms, 3, "2,A,SOCIEDAD - A,ERKIDEGOA - A", "DESCRIFORMACAS \"SOCIEDAD - A\": already in line 2"},
    {Forms, 3, "2,A,COMUNIDAD - A,SOZIETATEA - A", "DESCRIFORMAEUS \"SOZIETATEA - A\": already in line 2"},
    {Forms, 2, "1,A,Sociedad - A,SOZIETATEA - A", "DESCRIFORMACAS \"Sociedad - A\": " CAPITALS},
    {Forms, 4, "89,E,HERENCIA - E,JARAUNSPENA - E", "no row \"90\""},
    {Provinces, 2, "0,Una,Bat", "T07_PRO_ID \"0\": must be from 1 to 52"},
    {Provinces, 2, "53,Una,Bat", "T07_PRO_ID \"53\": must be from 1 to 52"},
    {Provinces, 3, "1,Una,Bat", "T07_PRO_ID \"1\": already in line 2"},
    {Provinces, 2, "1,Santa Cruz de Tenerife,Bat", "T07_PRO_CAS \"Santa Cruz de Tenerife\": must have 3 to 20 characters"},
    {Provinces, 3, "2,PROVINCIA 1,Bat", "T07_PRO_CAS \"PROVINCIA 1\": already in line 2"},
    {Provinces, 2, "1,Una,Bat*", "T07_PRO_EUS \"Bat*\": " LETTERS},
    {Provinces, 21, "20,Otra,Kelmaria", "T07_PRO_CAS \"Otra\": must be \"Kelmaria\" in this row"},
    {Provinces, 21, "20,Kelmaria,Besterik", "T07_PRO_EUS \"Besterik\": must be \"Kelmaria\" in this row"},
    {Provinces, 21, "20,KELMARIA,Kelmaria", "T07_PRO_CAS \"KELMARIA\": must be \"Kelmaria\" in this row"},
    {Municipalities, 2, "Zubiondo,0", "T08_CODMUN \"0\": must be from 1 to 999"},
    {Municipalities, 2, "Zubiondo,1000", "T08_CODMUN \"1000\": must have 1 to 3 characters"},
    {Municipalities, 2, "Zubiondo,-1", "T08_CODMUN \"-1\": must be a number without zeros in front"},
    {Municipalities, 3, "Nabarpe,5", "T08_CODMUN \"5\": already in line 2"},
    {Municipalities, 3, "zubiondo,6", "T08_NOMMUN \"zubiondo\": already in line 2"},
    {Municipalities, 2, "Zubiondozubiondozubiondozu,5", "T08_NOMMUN \"Zubiondozubiondozubiondozu\": must have 2 to 25 characters"},
    {Municipalities, 2, "Zubi'ondo,5", "T08_NOMMUN \"Zubi'ondo\": " LETTERS},
    {Streets, 2, "C,Calle,Kalea", "Siglas_Codigo \"C\": must have 2 characters"},
    {Streets, 2, "Cl,Calle,Kalea", "Siglas_Codigo \"Cl\": must be two capitals"},
    {Streets, 2, "C1,Calle,Kalea", "Siglas_Codigo \"C1\": must be two capitals"},
    {Streets, 3, "CL,Plaza,Plaza", "Siglas_Codigo \"CL\": already in line 2"},
    {Streets, 3, "PZ,Calle,Plaza", "siglas_cas \"Calle\": already in line 2"},
    {Streets, 3, "PZ,Plaza,kalea", "siglas_eus \"kalea\": already in line 2"},
    {Streets, 2, "CL,Calle de la villa,Kalea", "siglas_cas \"Calle de la villa\": must have 2 to 15 characters"},
    {Streets, 2, "CL,Calle,Harresitik kanpo", "siglas_eus \"Harresitik kanpo\": must have 2 to 15 characters"},
    {Motives, 2, "0,00-No,00-Ez", "CODIGO \"0\": must have 2 characters"},
    {Motives, 2, "0x,0x-No,0x-Ez", "CODIGO \"0x\": must be two digits"},
    {Motives, 2, "00,01-No,00-Ez", "\"01-No\" must start with 00-"},
    {Motives, 2, "00,00-No,00 Ez", "\"00 Ez\" must start with 00-"},
    {Motives, 3, "11,11-Uno,11-Bat", "CODIGO \"11\": is in the place of \"10\""},
    {Motives, 7, "40,40-Cinco,40-Bost", "CODIGO \"40\": is a row too many"},
    {Causes, 3, "12,MUERTE,HERIOTZA", "CODCAUSA \"12\": is in the place of \"11\""},
    {Causes, 4, "20,VEINTE VEINTE VEINTE1,HOGEI", "CAUSACAS \"VEINTE VEINTE VEINTE1\": must have 3 to 20 characters"},
    {Causes, 4, "20,VEINTÉ,HOGEI", "CAUSACAS \"VEINTÉ\": " CAPITALS},
    {Causes, 4, "20,VEINTE,UZTEA", "CAUSAEUS \"UZTEA\": already in line 2"},
    {Municipalities, 3, "Nabarpe", "1 field instead of 2"},
    {Municipalities, 3, "Nabarpe,1,2", "3 fields instead of 2"},
    {Municipalities, 3, "\"Nabarpe,1", "a quote is not closed in its line"},
    {Municipalities, 3, "\"Nabarpe\"e,1", "text behind a closing quote"},
    {Municipalities, 3, "Nabarpe \xF1,1", "not UTF-8"},
    {Municipalities, 1, "T08_NOMMUN,NUMBER", "no column T08_CODMUN"},
    {Municipalities, 1, "\"T08_NOMMUN,NUMBER", "a quote is not closed in its line"},
};

inline constexpr Line GoodLines[] = {
    {Activities, 2, "3.999,A B,C D", ""},
    {Activities, 2, "1.68110,ABC,DEF", ""},
    {Activities, 2, "1.681,CAÑAS 2/3 + 50% (A-B); C: D & E.,DEF", ""},
    {Activities, 3, "1.682,HOTELAK,HOTELES", ""},
    {Forms, 2, "89,W,SOCIEDAD - W,SOZIETATEA - W", ""},
    {Forms, 3, "2,A,COMUNIDAD - A,ERKIDEGOA - A", ""},
    {Provinces, 2, "1,Álava (Araba).,Araba/Á-B", ""},
    {Provinces, 20, "19,Otra,Besterik", ""},
    {Provinces, 2, "1,Abcdefghij abcdefghi,Bat", ""},
    {Municipalities, 2, "Zubiondozubiondozubiondoz,1", ""},
    {Municipalities, 2, "Ñu,999", ""},
    {Municipalities, 3, "Zúbiondo,6", ""},
    {Municipalities, 4, "", ""},
    {Streets, 3, "XX,Abcdefghij 1234,Plaza", ""},
    {Motives, 2, "00,00-No (á),00-Ñ", ""},
    {Causes, 4, "20,VEINTE VEINTE VEINTE,UZTEA 2", ""},
};
// clang-format on

}  // namespace padral::test::lines
