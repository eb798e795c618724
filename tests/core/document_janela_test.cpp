// The calculation window's load, activation and deactivation, and how its
// state reaches the frame's bars.
#include "caixas_roteiro.h"
#include "calculo_pronto.h"
#include "document/campos.h"
#include "document/ciclo.h"
#include "document/frm_calc_tramelo.h"
#include "document/janela.h"
#include "report/janela_relatorio.h"
#include "shell/barras.h"
#include "shell/mod_base.h"
#include "sizing/catalogo.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tramelo::teste {
namespace {

std::vector<std::string> Textos(const CaixaCombinacao& c) {
    std::vector<std::string> t;
    for (const ItemLista& i : c.itens)
        t.push_back(i.texto);
    return t;
}

TEST(DocumentJanela, CargaDeixaSoAsEscolhas) {
    auto f = Carregado();
    EXPECT_EQ(Textos(f->cboTramelo),
              (std::vector<std::string>{"Placa de orifício", "Orifício de restricão"}));
    EXPECT_EQ(Textos(f->cboFluido), (std::vector<std::string>{"Liqüido", "Gas", "Vapor"}));
    EXPECT_EQ(Textos(f->cboTomada), (std::vector<std::string>{"Flange Taps", "Radius Taps",
                                                              "Vena Contracta", "Corner Taps"}));
    for (const CaixaCombinacao* c : {&f->cboTramelo, &f->cboFluido, &f->cboTomada})
        EXPECT_EQ(c->ListIndex(), -1);
    EXPECT_TRUE(f->cboTramelo.Enabled);
    EXPECT_FALSE(f->cboFluido.Enabled || f->cboTomada.Enabled);

    EXPECT_FALSE(f->picLista.Enabled || f->cmdCalcular.Enabled || f->txtTag.Enabled ||
                 f->cboMassaDensidade.Enabled);
    EXPECT_FALSE(f->picMenu.corAtiva);
    for (int i : LinhasDados) {
        EXPECT_EQ(f->lblDados(i)->Caption, catalogo().NomeDados[static_cast<size_t>(i)]);
        EXPECT_FALSE(f->txtDados(i)->Enabled) << i;
    }
    EXPECT_EQ(f->lblDados(17)->Caption, "Massa Específica (leit)");

    EXPECT_FALSE(f->Alterado());
    EXPECT_FALSE(f->Relatorio->Visible);
    EXPECT_EQ(f->FatorPerda, 1.0f);
    EXPECT_TRUE(f->txtDados(29)->Locked);
    EXPECT_TRUE(f->txtDados(10)->Locked);
    EXPECT_EQ(f->cboMassaDensidade.ListIndex(), 0);
    for (int i : {10, 12, 14, 17, 18, 19})
        EXPECT_EQ(f->cboDados(i)->ListIndex(), 0) << i;
    EXPECT_FALSE(mdiMenu().tbPadrao.Botao("Salvar")->Enabled);
    EXPECT_FALSE(mdiMenu().tbCalculo.Botao("Calcular")->Enabled);
}

TEST(DocumentJanela, AtualizaBarraSegueOEstado) {
    CaixasRoteiro caixas;
    auto f = Carregado();
    MdiMenu& m = mdiMenu();
    BotaoBarra* salvar = m.tbPadrao.Botao("Salvar");

    // Changed but not ready: nothing can be saved.
    f->cboTramelo.DefineListIndex(0);
    EXPECT_TRUE(f->Alterado());
    EXPECT_FALSE(salvar->Enabled || f->mnuArquivoSalvar.Enabled || f->mnuArquivoSalvarComo.Enabled);
    EXPECT_TRUE(f->mnuArquivoSalvarTodos.Enabled);

    f->cboFluido.DefineListIndex(1);
    f->cboTomada.DefineListIndex(1);
    EXPECT_TRUE(salvar->Enabled && f->mnuArquivoSalvar.Enabled && f->mnuArquivoSalvarComo.Enabled);
    EXPECT_TRUE(m.tbCalculo.Botao("Calcular")->Enabled);

    // The setter mirrors the state only when the value really changes.
    f->DefineAlterado(false);
    EXPECT_FALSE(salvar->Enabled || f->mnuArquivoSalvar.Enabled);
    EXPECT_TRUE(f->mnuArquivoSalvarComo.Enabled);
    salvar->Enabled = true;
    f->DefineAlterado(false);
    EXPECT_TRUE(salvar->Enabled);
    f->DefineAlterado(true);
    EXPECT_TRUE(salvar->Enabled);
    salvar->Enabled = false;
    f->DefineAlterado(true);
    EXPECT_FALSE(salvar->Enabled);

    // The view ticks copy what the frame shows.
    m.sbStatusBar.Visible = false;
    m.cobBarra.Bands(2).Visible = false;
    AtualizaBarra(*f);
    EXPECT_FALSE(f->mnuExibirStatusBar.Checked || f->mnuExibirBarraCalculo.Checked);
    EXPECT_TRUE(f->mnuExibirBarraPadrao.Checked);

    f->cmdCalcular.Enabled = false;
    AtualizaBarra(*f);
    EXPECT_FALSE(m.tbCalculo.Botao("Calcular")->Enabled);
}

TEST(DocumentJanela, DesativacaoDesligaOsBotoesDoDocumento) {
    auto f = Escolhido();
    MdiMenu& m = mdiMenu();
    m.tbCalculo.Habilita("Calculadora", true);
    m.tbCalculo.Habilita("Imprimir", true);
    ASSERT_TRUE(m.tbPadrao.Botao("Salvar")->Enabled && m.tbCalculo.Botao("Calcular")->Enabled);
    Form_Deactivate(*f);
    for (const char* key : {"Calcular", "Calculadora"})
        EXPECT_FALSE(m.tbCalculo.Botao(key)->Enabled) << key;
    EXPECT_FALSE(m.tbPadrao.Botao("Salvar")->Enabled);
    EXPECT_TRUE(m.tbCalculo.Botao("Imprimir")->Enabled); // the report's own
    EXPECT_TRUE(m.tbPadrao.Botao("Novo")->Enabled);

    // The next activation sets them again for itself.
    Form_Activate(*f);
    EXPECT_TRUE(m.tbPadrao.Botao("Salvar")->Enabled && m.tbCalculo.Botao("Calcular")->Enabled);

    // The report's activation lights its two buttons; unloading the
    // calculation unloads its report, and they go out with it.
    Relatorio_Activate(*f->Relatorio);
    Form_Unload(*f);
    for (const char* key : {"Imprimir", "Exportar"})
        EXPECT_FALSE(m.tbCalculo.Botao(key)->Enabled) << key;
}

TEST(DocumentJanela, CabecalhoDoRelatorioVoltaNaAtivacao) {
    auto f = Escolhido();
    f->DefineAlterado(false);
    f->Relatorio->txtOS = "OS-7";
    Form_Activate(*f); // "Abrindo": never initialised
    EXPECT_FALSE(f->Alterado());
    EXPECT_EQ(f->TextoOS, "");

    f->Relatorio->txtData = "10:00 - 01/02/2003";
    f->Relatorio->txtCliente = "Quillon";
    Form_Activate(*f);
    EXPECT_TRUE(f->Alterado());
    EXPECT_EQ(f->TextoData, "10:00 - 01/02/2003");
    EXPECT_EQ(f->TextoOS, "OS-7");
    EXPECT_EQ(f->TextoCliente, "Quillon");

    f->DefineAlterado(false);
    Form_Activate(*f); // all three alike
    EXPECT_FALSE(f->Alterado());
}

TEST(DocumentJanela, NomeDoArquivoSegueALegenda) {
    DefinePastas("/opt/tramelo");
    auto f = Carregado();
    std::vector<FrmCalcTramelo*> menus;
    AtualizaMRUDoCalculo = [&](FrmCalcTramelo& janela) { menus.push_back(&janela); };
    struct Passo {
        std::string legenda, legendaDepois, arquivo;
    };
    const Passo passos[] = {
        {"Cálculo 1", "Cálculo 1", "/opt/tramelo/Saves/Cálculo 1"},
        {"/home/ana/a.trl", "a.trl", "/opt/tramelo/Saves//home/ana/a.trl"},
        {"a.trl", "a.trl", "/opt/tramelo/Saves/a.trl"},
        {"", "", "/opt/tramelo/Saves/a.trl"}, // an empty caption derives nothing
    };
    for (const Passo& p : passos) {
        f->Caption = p.legenda;
        Atualiza(*f);
        EXPECT_EQ(f->Caption, p.legendaDepois);
        EXPECT_EQ(f->ArquivoCalculo, p.arquivo);
    }
    AtualizaMRUDoCalculo = nullptr;
    EXPECT_EQ(menus.size(), 4u);
    EXPECT_EQ(menus[0], f.get());
}

} // namespace
} // namespace tramelo::teste
