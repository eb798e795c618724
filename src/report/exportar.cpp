#include "report/exportar.h"

#include "plataforma/ambiente.h"
#include "plataforma/canal.h"
#include "plataforma/falha.h"
#include "report/exportacao.h"
#include "report/frm_relatorio.h"
#include "base/mod_base.h"

#include <new>
#include <string>

namespace tramelo {

void mnuArquivoExportarRelatorio_Click(FrmRelatorio& r) {
    r.Enabled = false;
    MousePointer(vbHourglass);
    CriaPasta(modBase().PastaRelatorios);

    std::string arquivo;
    auto falhou = [&r](const Falha& f) {
        // Channel 1 isn't closed here: a failure while writing leaves it taken.
        r.Enabled = true;
        MousePointer(vbDefault);
        r.Show();
        if (f.numero() != DialogoCancelado) InformaErro(f);
    };
    try {
        ConfiguraDialogo d;
        d.DialogTitle = "Exportar relatório";
        d.Filter = "Documentos de texto (*.txt)|*.txt|Documentos de Word (*.doc)|*.doc";
        d.Flags = cdlOFNOverwritePrompt | cdlOFNHideReadOnly | cdlOFNPathMustExist;
        d.InitDir = modBase().PastaRelatorios;
        // As typed, even with characters a file name can't hold: the dialog
        // refuses those. No default extension is set.
        d.FileName = r.txtCliente;
        arquivo = ShowSave(d);
        r.Show();

        CanalArquivo& c = canal1();
        c.AbreSaida(arquivo);
        for (const std::string& linha : LinhasExportacao(r)) {
            c.Imprime(linha);
            c.NovaLinha();
        }
        c.Fecha();
    } catch (const Falha& f) {
        falhou(f);
        return;
    } catch (const std::bad_alloc&) {
        falhou(Falha(FaltaMemoria));
        return;
    }

    // Whether anything could open it is not looked at.
    try {
        AbreNoSistema(arquivo);
    } catch (...) {
    }
    r.Enabled = true;
    MousePointer(vbDefault);
}

} // namespace tramelo
