#include "shell/dicas.h"

#include "plataforma/caixas.h"
#include "plataforma/canal.h"
#include "base/barras.h"
#include "shell/entrada.h"
#include "base/instalacao.h"
#include "base/mod_base.h"
#include "shell/registro.h"

#include <chrono>
#include <cmath>
#include <memory>
#include <random>

namespace tramelo {

void Form_Load(FrmDica& f, const LugarDica& lugar) {
    f.Carregado = true;
    if (LeConfig("Config", "DicasIniciar") != "0") f.chkDicasIniciar.Value = true;

    // The form's place is in the frame's client area; the rectangles'
    // difference stands for the frame's border and bars.
    const MdiMenu& m = mdiMenu();
    const double t = lugar.twipsPorPixel;
    f.Left = static_cast<int>(
        std::lround((m.Width - f.Width - t * (lugar.dica.Left - lugar.menu.Left)) / 2.0));
    f.Top = static_cast<int>(
        std::lround((m.Height - f.Height - t * (lugar.dica.Top - lugar.menu.Top)) / 2.0));

    if (!f.Rnd) {
        auto gerador = std::make_shared<std::mt19937_64>(
            static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
        f.Rnd = [gerador] { return std::uniform_real_distribution<double>(0.0, 1.0)(*gerador); };
    }

    if (!LoadTips(f, ArquivoDoPrograma(PastaExecutavel(), ArquivoDicas)))
        f.lblTipText = std::string("Este arquivo 'DicaDoDia.txt' não foi encontrado? ") + "\n\n" +
                       "Verifique se o arquivo não foi movido ou excluído, e reinsta-le o " +
                       TituloPrograma;
}

bool LoadTips(FrmDica& f, const std::string& Arquivo) {
    if (Arquivo.empty()) return false;
    if (!ExisteArquivo(Arquivo)) return false;
    CanalArquivo& canal = canal1();
    canal.AbreEntrada(Arquivo);
    while (!canal.Eof())
        f.Dicas.push_back(canal.LeLinha());
    canal.Fecha();
    DicaSorteia(f);
    return true;
}

void DicaSorteia(FrmDica& f) {
    const double r = f.Rnd ? f.Rnd() : 0.0;
    f.DicaAtual = static_cast<int32_t>(std::floor(r * static_cast<double>(f.Dicas.size()) + 1));
    DicaMostrarAtual(f);
}

void DicaMostrarAtual(FrmDica& f) {
    if (!f.Dicas.empty()) f.lblTipText = f.Dicas.at(static_cast<size_t>(f.DicaAtual - 1));
}

void cmdNextTip_Click(FrmDica& f) {
    DicaSorteia(f);
}

void cmdOK_Click(FrmDica& f) {
    f.Carregado = false;
}

void chkDicasIniciar_Click(FrmDica& f) {
    GravaConfig("Config", "DicasIniciar", f.chkDicasIniciar.Value ? "1" : "0");
}

} // namespace tramelo
