// The .trl reader: arbitrary bytes opened into a fresh calculation window,
// then saved and opened again, the way a user would keep a damaged file.
#include "apoio.h"

#include "document/arquivo_trl.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t n) {
    using namespace tramelo;
    const std::string arquivo = fuzz::GravaEntrada("entrada.trl", dados, n);
    canal1().Reinicia(); // a short file leaves channel 1 taken, by design
    FrmCalcTramelo f;
    Form_Load(f);
    TrameloOpen(f, arquivo);
    canal1().Reinicia();
    if (f.ArquivoExiste) {
        // What was read is written back and read once more: the writer must
        // take whatever the reader left in the window.
        bool ok = false;
        f.ArquivoCalculo = fuzz::PastaDoFuzz() + "/de-volta.trl";
        TrameloSave(f, false, ok);
        canal1().Reinicia();
        FrmCalcTramelo g;
        Form_Load(g);
        TrameloOpen(g, f.ArquivoCalculo);
        canal1().Reinicia();
    }
    return 0;
}
