// Whole reports, and the ways a run ends early.
#include "calculo_pronto.h"
#include "caixas_roteiro.h"
#include "relatorio_dourado.h"
#include "sizing/calculo.h"
#include "plataforma/numero.h"
#include "sizing/execucao.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace tramelo::teste {
namespace {

std::unique_ptr<FrmCalcTramelo> Agua() {
    auto f = CalculoPronto(0, 1);
    f->txtTag.DefineTexto("FT-2301");
    Preenche(*f, {{2, "50"}, {4, "102,26"}, {5, "25000"}, {8, "20"}, {9, "20"}, {17, "998"},
                  {18, "998"}, {20, "1"}, {28, "0,8"}});
    return f;
}

std::unique_ptr<FrmCalcTramelo> ArSeco() {
    auto f = CalculoPronto(1, 4, 2);
    f->txtTag.DefineTexto("FE-101");
    Preenche(*f, {{2, "1000"}, {4, "102,26"}, {5, "10000"}, {8, "0"}, {9, "40"}, {12, "500"},
                  {16, "0"}, {19, "1"}, {25, "1"}, {26, "1"}, {20, "0,018"}, {27, "1,4"},
                  {28, "0,8"}});
    return f;
}

TEST(SizingRelatorio, RelatoriosInteiros) {
    CaixasRoteiro caixas;
    auto agua = Agua();
    ASSERT_EQ(cmdCalcular_Click(*agua).fim, FimCalculo::Concluido);
    ConfereDourado("liquido_flange.txt", agua->Relatorio->lstRelatorio);

    auto ar = ArSeco();
    ASSERT_EQ(cmdCalcular_Click(*ar).fim, FimCalculo::Concluido);
    ConfereDourado("gas_volume_corner.txt", ar->Relatorio->lstRelatorio);
    // With the gas chosen last, the water's report still names its own
    // fluid and taps.
    ASSERT_EQ(cmdCalcular_Click(*agua).fim, FimCalculo::Concluido);
    ConfereDourado("liquido_flange.txt", agua->Relatorio->lstRelatorio);

    auto gasMassa = ArSeco();
    gasMassa->Tomada = 2;
    gasMassa->NomeTomada = "Radius Taps";
    gasMassa->cboDados(2)->DefineListIndex(2); // T/h
    gasMassa->txtDados(2)->DefineTexto("1,5");
    gasMassa->cboDados(5)->DefineListIndex(2); // mmCA
    gasMassa->FatorPerda = 0.1022f;
    gasMassa->txtDados(5)->DefineTexto("1000");
    ASSERT_EQ(cmdCalcular_Click(*gasMassa).fim, FimCalculo::Concluido);
    ConfereDourado("gas_massa_radius.txt", gasMassa->Relatorio->lstRelatorio);

    auto vapor = CalculoPronto(2, 3);
    Preenche(*vapor, {{2, "5000"}, {4, "154,05"}, {5, "20000"}, {9, "200"}, {12, "10,2"},
                      {18, "4,85"}, {20, "0,0157"}, {27, "1,3"}, {28, "0,7"}});
    for (int i : {10, 12, 14}) vapor->cboDados(i)->DefineListIndex(1); // Kg/cm²
    ASSERT_EQ(cmdCalcular_Click(*vapor).fim, FimCalculo::Concluido);
    ConfereDourado("vapor_vena.txt", vapor->Relatorio->lstRelatorio);
    EXPECT_TRUE(caixas.mostradas.empty() ||
                std::all_of(caixas.mostradas.begin(), caixas.mostradas.end(),
                            [](const CaixaMostrada& m) { return m.entrada; }));
}

TEST(SizingRelatorio, CampoVazioEncerraComMensagem) {
    CaixasRoteiro caixas;
    auto f = Agua();
    f->txtDados(8)->DefineTexto("");
    f->txtDados(19)->DefineTexto(""); // not a liquid's field: no message for it
    ResultadoCalculo r = cmdCalcular_Click(*f);
    EXPECT_EQ(r.fim, FimCalculo::Interrompido);
    ASSERT_EQ(caixas.mostradas.size(), 1u);
    EXPECT_EQ(caixas.mostradas[0].texto, "O campo 'Temperatura de leitura' não foi preenchido");
    EXPECT_EQ(caixas.mostradas[0].titulo, "Todos os campos devem ser preenchidos");
    EXPECT_EQ(caixas.mostradas[0].estilo, vbExclamation);
    EXPECT_EQ(f->foco, "txtDados(8)");
    EXPECT_EQ(f->Relatorio->lstRelatorio.back(),
              " Temperatura de leitura ___________  " + std::string(39, '_') + " ºC");
    EXPECT_FALSE(f->Relatorio->Visible);

    // A mass flow doesn't read fields 8 and 17.
    caixas.mostradas.clear();
    f->cboDados(2)->DefineListIndex(1);
    f->txtDados(2)->DefineTexto("49900");
    f->txtDados(17)->DefineTexto("");
    Execucao x;
    EXPECT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_TRUE(caixas.mostradas.empty());
    EXPECT_EQ(x.VazaoMassica.valor(), 49900);
}

TEST(SizingRelatorio, ToneladasEMaterial) {
    CaixasRoteiro caixas;
    auto f = Agua();
    f->cboDados(2)->DefineListIndex(2); // T/h
    f->txtDados(2)->DefineTexto("2");
    f->txtDados(9)->DefineTexto("120");
    Execucao x;
    cmdCalcular_Click(*f, &x);
    EXPECT_EQ(x.Dados[2].Numero().valor(), 2000);
    EXPECT_EQ(f->Relatorio->lstRelatorio[6],
              " Vazão de projeto _________________ 2 " + std::string(37, '_') + " T/h");
    EXPECT_EQ(x.FatorMaterial.Numero().valor(), 1.0034);
    EXPECT_EQ(f->txtDados(29)->Text(), "1,0034");
}

TEST(SizingRelatorio, LimitesDoCoeficiente) {
    // 105 M³/h takes CoefCarga just above 0,5; 1 M³/h below 0,006.
    for (const char* vazao : {"105", "1"}) {
        SCOPED_TRACE(vazao);
        CaixasRoteiro caixas;
        auto f = Agua();
        f->txtDados(2)->DefineTexto(vazao);
        caixas.respostas = {vbOK, vbNo};
        Execucao x;
        EXPECT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
        ASSERT_EQ(caixas.mostradas.size(), 2u);
        EXPECT_EQ(caixas.mostradas[0].texto,
                  "Valor de Coeficiente de 'Coeficiente de Carga' fora dos limites: (0,006 a 0,5)");
        EXPECT_EQ(caixas.mostradas[0].titulo,
                  "Coeficiente de Carga = " + NumeroParaTexto(x.CoefCarga.valor()));
        EXPECT_EQ(caixas.mostradas[1].texto, "Deseja alterar o dados para cálculo?");
        EXPECT_EQ(caixas.mostradas[1].titulo, "Tramelo");
        EXPECT_EQ(caixas.mostradas[1].estilo, vbYesNo + vbQuestion);

        caixas.mostradas.clear();
        caixas.respostas = {vbOK, vbYes};
        f->Relatorio->Hide();
        EXPECT_EQ(cmdCalcular_Click(*f).fim, FimCalculo::Interrompido);
        EXPECT_FALSE(f->Relatorio->Visible);
    }
}

TEST(SizingRelatorio, PerguntaDoDesenho) {
    CaixasRoteiro caixas;
    auto f = Agua();
    f->chkDesenho.Value = 1;
    caixas.respostas = {vbYes, vbYes, vbNo};
    EXPECT_EQ(cmdCalcular_Click(*f).fim, FimCalculo::Concluido);
    ASSERT_EQ(caixas.mostradas.size(), 3u);
    EXPECT_EQ(caixas.mostradas[2].titulo, "Desenho de fabricação");
    EXPECT_EQ(caixas.mostradas[2].estilo, vbYesNo + vbInformation);

    // Any fluid but a liquid in volume units asks once.
    caixas.mostradas.clear();
    caixas.respostas = {vbYes};
    f->cboDados(2)->DefineListIndex(1);
    f->txtDados(2)->DefineTexto("49900");
    cmdCalcular_Click(*f);
    EXPECT_EQ(caixas.mostradas.size(), 1u);
}

TEST(SizingRelatorio, FalhaDeExecucaoEntregaNumeroEDescricao) {
    CaixasRoteiro caixas;
    auto f = Agua();
    f->txtDados(5)->DefineTexto("abc");
    ResultadoCalculo r = cmdCalcular_Click(*f);
    EXPECT_EQ(r.fim, FimCalculo::Falhou);
    EXPECT_EQ(r.erro, (ErroExecucao{13, "Tipos incompatíveis"}));
    EXPECT_EQ(f->Relatorio->lstRelatorio.back().substr(0, 21), " Fator do material ut");

    f->txtDados(5)->DefineTexto("25000");
    f->txtDados(18)->DefineTexto("0");
    r = cmdCalcular_Click(*f);
    EXPECT_EQ(r.erro.numero, 11);

    // Running twice leaves only the second run's lines.
    f->txtDados(18)->DefineTexto("998");
    cmdCalcular_Click(*f);
    size_t n = f->Relatorio->lstRelatorio.size();
    cmdCalcular_Click(*f);
    EXPECT_EQ(f->Relatorio->lstRelatorio.size(), n);
}

TEST(SizingRelatorio, TomadaCincoLiquidoPeloValorDireto) {
    CaixasRoteiro caixas;
    auto f = Agua();
    f->Tomada = 5;
    f->NomeTomada = catalogo().NomeTomadas[5];
    Execucao x;
    ASSERT_EQ(cmdCalcular_Click(*f, &x).fim, FimCalculo::Concluido);
    EXPECT_EQ(x.passes, 0);
    EXPECT_EQ(x.Beta.valor(), std::sqrt(x.CoefCarga.valor() / 0.61));
    ConfereDourado("liquido_pipe_taps.txt", f->Relatorio->lstRelatorio);
}

} // namespace
} // namespace tramelo::teste
