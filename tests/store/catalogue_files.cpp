#include "store/catalogue_files.h"

namespace padral::test {

namespace {

constexpr int Territory = 20;

QByteArray provinces() {
    QByteArray text = "T07_PRO_ID,T07_PRO_CAS,T07_PRO_EUS\n";
    for (int i = 1; i <= 52; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += number + (i == Territory ? ",Kelmaria,Kelmaria"
                                         : ",Provincia " + number + ",Probintzia " + number);
        text += '\n';
    }
    return text;
}

}  // namespace

CatalogueFiles::CatalogueFiles() {
    Write("TEpigrafes_2000",
          "EPICODEPI,EPIDEPCAS,EPIDEPEUS\n"
          "1.681,HOTELES,HOTELAK\n"
          "2.41100,\"PINTORES, N.C.O.P.\",MARGOLARIAK\n"
          "9999999,SIN ACTIVIDAD,JARDUERARIK GABE\n");
    Write("TFormasJuridicas",
          "CODFORMA,LETDNI,DESCRIFORMACAS,DESCRIFORMAEUS\n"
          "1,A,SOCIEDAD - A,SOZIETATEA - A\n"
          "2,E,COMUNIDAD - E,ERKIDEGOA - E\n"
          "90,,OTROS,BESTELAKOAK\n");
    Write("TProvincias", provinces());
    Write("TMunicipios", "T08_NOMMUN,T08_CODMUN\nZubiondo,5\nÑabarpe,120\nAzpilko (San Juan),3\n");
    Write("TSiglas", "Siglas_Codigo,siglas_cas,siglas_eus\nCL,Calle,Kalea\nPZ,Plaza,Plaza\n");
    Write("TMotivoCambio",
          "CODIGO,MOTIVOCAS,MOTIVOEUS\n00,00-No,00-Ez\n10,10-Uno,10-Bat\n20,20-Dos,20-Bi\n"
          "30,30-Tres,30-Hiru\n31,31-Razón,31-Lau\n");
    Write("TCausasCese",
          "CODCAUSA,CAUSACAS,CAUSAEUS\n10,CESE,UZTEA\n11,MUERTE,HERIOTZA\n20,VEINTE,HOGEI\n"
          "22,VEINTIDOS,HOGEITA BI\n30,TREINTA,HOGEITA HAMAR\n31,TREINTA Y UNO,HOGEITA HAMAIKA\n"
          "32,FUSION,BATZEA\n33,ESPAÑA,ESPAINIA\n99,OTRAS,BESTEAK\n");
}

QString CatalogueFiles::File(const char* table) const {
    return Path(table) + QStringLiteral(".csv");
}

void CatalogueFiles::Write(const char* table, const QByteArray& text) const {
    Overwrite(File(table), text);
}

void CatalogueFiles::Replace(const char* table, int line, const char* text) const {
    QByteArrayList lines = Bytes(File(table)).split('\n');
    ASSERT_LE(line, lines.size()) << table;
    lines[line - 1] = text;
    Write(table, lines.join('\n'));
}

}  // namespace padral::test
