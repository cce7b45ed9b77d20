#include "adjudication/explain.h"

#include "adjudication/stages.h"
#include "support/scripted_messages.h"
#include "support/situation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

/// Units with their orders, one a line ("> ": an order alone), and the sentences of some orders, by
/// their text: all up to the "=" of "GER A(Mun) hold = It held.".
struct Case {
  std::vector<std::string> Lines;
  std::vector<std::string> Sentences;
  std::vector<std::string> Owners = {};
};

model::GameState Draw(std::string_view stage, const Case& drawn) {
  model::GameState game = EmptyBoard("Autumn", stage);
  for (const std::string& line : drawn.Lines) {
    const std::string order = line.starts_with("> ") ? line.substr(2) : AddDrawnUnit(game, line);
    auto& list = stage == "moves"      ? game.OrdersList
                 : stage == "retreats" ? game.RetreatsList
                                       : game.AdjustmentsList;
    if (!order.empty()) list.push_back(order);
  }
  for (const std::string& note : drawn.Owners) {
    for (const std::string& place : Words(note.substr(3)))
      game.Provinces[model::FindProvince(*game.Map, place)].Owner = note.substr(0, 3);
  }
  return game;
}

/// The order with this text, 0 for none.
int OrderOf(const adjudication::Resolution& resolution, std::string_view text) {
  for (int k = resolution.Orders.Count(); k >= 1; --k) {
    if (resolution.Orders[k].Text == text) return k;
  }
  return 0;
}

void ExpectSentences(std::string_view stage, const std::vector<Case>& cases) {
  for (const Case& drawn : cases) {
    model::GameState game = Draw(stage, drawn);
    ScriptedMessages messages;
    const adjudication::Resolution resolution = adjudication::ResolveStage(game, messages);
    ASSERT_TRUE(resolution.Completed) << drawn.Lines.front();
    for (const std::string& line : drawn.Sentences) {
      const auto sign = line.find(" = ");
      const int order = OrderOf(resolution, line.substr(0, sign));
      ASSERT_EQ(order == 0, line.starts_with("ADJUSTMENTS")) << line;
      EXPECT_EQ(adjudication::ExplainOrder(game, resolution, order), line.substr(sign + 3)) << line;
    }
  }
}

TEST(Explain, StrengthsOfMoves) {
  ExpectSentences(
      "moves",
      {{{"FRA A(Par) - Bur", "FRA A(Mar) S A(Par) - Bur", "GER A(Mun) - Bur"},
        {R"(FRA A(Par) - Bur = It moved: strength 2 (supported by FRA A(Mar)) beats strength 1 of the rival move "GER A(Mun) - Bur".)",
         R"(GER A(Mun) - Bur = It failed: strength 1 is less than strength 2 (supported by FRA A(Mar)) of the rival move "FRA A(Par) - Bur".)"}},
       {{"TUR F(BLA) - Sev", "RUS F(Sev) - BLA"},
        {("TUR F(BLA) - Sev = It failed: strength 1 is not more than strength 1 of RUS F(Sev), "
          "which came the opposite way.")}},
       {{"FRA A(Bur) - Mun", "FRA A(Ruh) S A(Bur) - Mun", "GER A(Mun) - Ber",
         "GER A(Kie) S A(Mun) - Ber", "RUS A(Pru) - Ber", "RUS A(Sil) S A(Pru) - Ber"},
        {("FRA A(Bur) - Mun = It moved: strength 2 (supported by FRA A(Ruh)) beats strength 1 of "
          "GER A(Mun), whose own move failed, so that it defends with 1 only."),
         "GER A(Mun) - Ber = It failed: strength 2 (supported by GER A(Kie)) is not more than "
         R"(strength 2 (supported by RUS A(Sil)) of the rival move "RUS A(Pru) - Ber"; it was )"
         R"(dislodged by "FRA A(Bur) - Mun": strength 2 (supported by FRA A(Ruh)) beats its )"
         "strength 1, all that it defends with after its own move failed."}},
       {{"RUS A(Ukr) - Rum", "ENG A(Bul) S RUS A(Ukr) - Rum", "ENG A(Rum) hold"},
        {R"(ENG A(Bul) S RUS A(Ukr) - Rum = Its support of "RUS A(Ukr) - Rum" did not count against ENG A(Rum), a unit of its own power.)",
         ("RUS A(Ukr) - Rum = It failed: strength 1 is not more than strength 1 of ENG A(Rum), "
          "which stayed there; the support of ENG A(Bul) did not count, because ENG is the power "
          "attacked.")}},
       // A support is taken off by the cut and again when its unit is dislodged.
       {{"GER F(NWG) - NAO", "RUS F(MAO) S GER F(NWG) - NAO", "TUR F(NAO) - MAO",
         "ITA F(WES) S TUR F(NAO) - MAO", "TUR F(Gas) - MAO", "GER F(IRI) - NAO"},
        {R"(GER F(NWG) - NAO = It failed: strength 0 is less than strength 1 of the rival move "GER F(IRI) - NAO"; the support of RUS F(MAO) was cut by "TUR F(Gas) - MAO" and taken off once more when it was dislodged from the place supported into.)",
         R"(GER F(IRI) - NAO = It moved: TUR F(NAO) left and the rival move "GER F(NWG) - NAO" had no strength left.)"}},
       {{"FRA A(Par) - Bur", "> FRA A(Par) - Gas"},
        {("FRA A(Par) - Bur = It moved: the place was empty and no other move aimed there, but a "
          "later order took the unit on to Gas."),
         "FRA A(Par) - Gas = It moved: the place was empty and no other move aimed there."}}});
}

TEST(Explain, UnitsThatStay) {
  ExpectSentences(
      "moves",
      {{{"TUR A(Sev) hold", "TUR F(BLA) S A(Sev) hold", "RUS A(Ukr) - Sev", "RUS A(Mos) - Sev"},
        {R"(TUR A(Sev) hold = It held with strength 2 (supported by TUR F(BLA)) against strength 1 of "RUS A(Ukr) - Sev" and strength 1 of "RUS A(Mos) - Sev".)",
         "TUR F(BLA) S A(Sev) hold = It supported TUR A(Sev) where it stood."}},
       // The holder's own strength decides nothing here.
       {{"GER A(Mun) hold", "FRA A(Bur) - Mun", "FRA A(Ruh) S A(Bur) - Mun", "ITA A(Tyr) - Mun",
         "ITA A(Boh) S A(Tyr) - Mun"},
        {R"(GER A(Mun) hold = It held: "FRA A(Bur) - Mun" failed against the rival "ITA A(Tyr) - Mun", strength 2 (supported by ITA A(Boh)); "ITA A(Tyr) - Mun" failed against the rival "FRA A(Bur) - Mun", strength 2 (supported by FRA A(Ruh)).)"}},
       {{"GER A(Mun) hold", "FRA A(Bur) - Mun", "FRA A(Ruh) S A(Bur) - Mun",
         "FRA A(Sil) S A(Bur) - Mun", "ITA A(Tyr) - Mun", "ITA A(Boh) S A(Tyr) - Mun"},
        {R"(GER A(Mun) hold = It was dislodged by "FRA A(Bur) - Mun": strength 3 (supported by FRA A(Ruh), FRA A(Sil)) beats strength 2 (supported by ITA A(Boh)) of the rival move "ITA A(Tyr) - Mun".)"}},
       {{"GER A(Mun)", "GER A(Ber)", "FRA A(Bur) - Mun", "FRA A(Ruh) S A(Bur) - Mun"},
        {"GER A(Ber) unordered; hold = It had no order, so it held.",
         R"(GER A(Mun) unordered; hold = It had no order; it was dislodged by "FRA A(Bur) - Mun": strength 2 (supported by FRA A(Ruh)) beats its strength 1.)"}}});
}

TEST(Explain, SupportsAndConvoys) {
  ExpectSentences(
      "moves",
      {{{"GER A(Ruh) S A(Mun) - Bur", "GER A(Mun) - Bur", "FRA A(Bel) - Ruh",
         "FRA A(Hol) S A(Bel) - Ruh"},
        {R"(GER A(Ruh) S A(Mun) - Bur = Its support was cut by "FRA A(Bel) - Ruh", which also dislodged it: strength 2 (supported by FRA A(Hol)) beats its strength 1.)",
         "GER A(Mun) - Bur = It moved: the place was empty and no other move aimed there; the "
         R"(support of GER A(Ruh) was cut by "FRA A(Bel) - Ruh".)"}},
       {{"ITA F(ION) S A(Tri) - Alb", "ITA A(Tri) - Alb", "AUS F(Alb) - ION"},
        {R"(ITA F(ION) S A(Tri) - Alb = It supported "ITA A(Tri) - Alb"; "AUS F(Alb) - ION" did not cut it: it came from Alb, the place supported into.)"}},
       {{"ENG A(Lon) - Bel", "ENG F(NTH) C A(Lon) - Bel", "FRA F(ECH) - NTH"},
        {("ENG A(Lon) - Bel = It moved, carried by ENG F(NTH): the place was empty and no other "
          "move aimed there."),
         R"(ENG F(NTH) C A(Lon) - Bel = It convoyed "ENG A(Lon) - Bel"; it held with strength 1 against strength 1 of "FRA F(ECH) - NTH".)"}},
       {{"ENG A(Lon) - Bel", "ENG F(ECH) C A(Lon) - Bel", "ENG F(NTH) C A(Lon) - Bel",
         "ENG A(Hol) S A(Lon) - Bel", "GER A(Bel) S A(Ruh) - Bur", "GER A(Ruh) - Bur",
         "FRA F(Bre) - ECH", "FRA F(MAO) S F(Bre) - ECH"},
        {R"(ENG A(Lon) - Bel = Its convoy failed: ENG F(ECH) was dislodged by "FRA F(Bre) - ECH".)",
         R"(ENG F(ECH) C A(Lon) - Bel = Its convoy of "ENG A(Lon) - Bel" failed; it was dislodged by "FRA F(Bre) - ECH": strength 2 (supported by FRA F(MAO)) beats its strength 1.)",
         R"(ENG F(NTH) C A(Lon) - Bel = Its convoy of "ENG A(Lon) - Bel" failed: ENG F(ECH) was dislodged by "FRA F(Bre) - ECH".)",
         R"(ENG A(Hol) S A(Lon) - Bel = It supported "ENG A(Lon) - Bel", but that move's convoy failed.)",
         R"(GER A(Bel) S A(Ruh) - Bur = It supported "GER A(Ruh) - Bur"; "ENG A(Lon) - Bel" did not cut it: its convoy failed.)"}}});
}

TEST(Explain, RejectedMoves) {
  ExpectSentences(
      "moves",
      {{{"TUR F(AEG) - Bul", "TUR A(Con) - Bul.e", "TUR A(Smy) S F(AEG) - Bul", "RUS F(Stp.n) hold",
         "> RUS F(Stp) hold", "> RUS F(Mos) hold"},
        {"TUR F(AEG) - Bul = It is impossible: a fleet must name the coast: Bul.e or Bul.s.",
         "TUR A(Con) - Bul.e = It is impossible: an army must name the place without a coast: Bul.",
         ("TUR A(Smy) S F(AEG) - Bul = It is impossible: the army in Smy cannot move to Bul, so it "
          "cannot support there."),
         "RUS F(Stp) hold = There is no such unit: RUS has no F(Stp); its unit there is F(Stp.n).",
         "RUS F(Mos) hold = There is no such unit: RUS has no F(Mos)."}},
       {{"ENG A(Lon) - Bel", "ENG A(Lvp) - Par", "FRA A(Mun) S A(Bur) hold", "FRA A(Bur) - Par",
         "FRA A(Mar) S A(Pie) - Tus", "ITA A(Pie) hold", "> FRA A(Mar) S A(Spa) hold"},
        {("ENG A(Lon) - Bel = It is impossible: no army can move from Lon to Bel by land, and no "
          "order convoys it."),
         "ENG A(Lvp) - Par = It is impossible: no army can move from Lvp to Par.",
         ("FRA A(Mun) S A(Bur) hold = It is void: FRA A(Bur) was ordered to move to Par, not to "
          "hold."),
         ("FRA A(Mar) S A(Pie) - Tus = It is void: there is no FRA A(Pie); the unit there is ITA "
          "A(Pie)."),
         "FRA A(Mar) S A(Spa) hold = It is void: there is no FRA A(Spa)."}},
       {{"ITA F(Nap) - TYR", "ITA A(Rom) -", "ITA A(Ven", "> Italy A(Apu) hold", "> ITA",
         "> ITA X(Mil) hold"},
        {R"(ITA F(Nap) - TYR = It was not understood: the destination "TYR" is not on the map.)",
         "ITA A(Rom) - = It was not understood: the destination is missing.",
         "ITA A(Ven = It was not understood: the unit's location is not complete.",
         R"(Italy A(Apu) hold = It was not understood: "Italy" is not a power.)",
         "ITA = It was not understood: the unit is missing.",
         R"(ITA X(Mil) hold = It was not understood: "X" is neither A nor F.)"}}});
}

TEST(Explain, Retreats) {
  ExpectSentences(
      "retreats",
      {{{"FRA A(Bur) <Mun retreat Gas", "FRA A(Gas) <Spa retreat Mar",
         "ITA A(Pie) <Ven retreat Mar", "GER A(Kie) <Den retreat Ber", "GER A(Ber)",
         "AUS A(Vie) <Boh"},
        {("FRA A(Bur) retreat Gas = It was disbanded: FRA A(Gas) stands in Gas, itself dislodged "
          "but still there when retreats are decided."),
         R"(FRA A(Gas) retreat Mar = It was disbanded: "ITA A(Pie) retreat Mar" aims at the same place, so both were lost.)",
         "GER A(Kie) retreat Ber = It was disbanded: GER A(Ber) stands in Ber.",
         "AUS A(Vie) disband = It was disbanded: no order was given."}}});
}

TEST(Explain, Adjustments) {
  ExpectSentences(
      "adjustments",
      {{{"TUR A(Bul)", "FRA A(Par)", "FRA A(Bur)", "GER A(Ber)", "ITA A(Ven)", "> TUR BUILD F(Con)",
         "> FRA DISBAND A(Bur)", "> FRA BUILD X(Mar)", "> RUS BUILD F(Stp)", "> RUS BUILD A(Sev)",
         "> RUS BUILD F(Sev)", "> RUS DISBAND A(Bul)", "> FRA BUILD A(Par)"},
        {("ADJUSTMENTS = FRA had 2 units and 1 centre: it must remove 1 and removed 1; RUS had 0 "
          "units and 2 centres: it may build 2 and built none; TUR had 1 unit and 3 centres: it "
          "may "
          "build 2 and built 1."),
         R"(FRA BUILD X(Mar) = It was not understood: "X" is neither A nor F.)",
         "RUS BUILD F(Stp) = It was not built: a fleet must name the coast: Stp.n or Stp.s.",
         R"-(RUS BUILD A(Sev) = It clashed with "RUS BUILD F(Sev)": both are for one place, so neither was built.)-",
         ("RUS DISBAND A(Bul) = There is no such unit: RUS has no A(Bul); the unit there is TUR "
          "A(Bul)."),
         "FRA BUILD A(Par) = It was not built: Par is not empty; its unit there is A(Par)."},
        {"TUR Con Ank Smy", "FRA Par", "GER Ber", "ITA Ven", "RUS Stp Sev"}}});
}

TEST(Explain, AdjustmentsThatFoundNoRoom) {
  model::GameState game =
      Draw("adjustments", {{"> ENG BUILD A(Lon)", "> ENG BUILD A(Edi)"}, {}, {"ENG Lon Edi"}});
  for (int i = 1; i < model::UnitBound; ++i)
    game.Units.Append().Location = "NTH";
  ScriptedMessages messages;
  const adjudication::Resolution resolution = adjudication::ResolveStage(game, messages);
  EXPECT_EQ(
      adjudication::ExplainReport(game, resolution),
      (std::vector<std::string>{"ENG had 0 units and 2 centres: it may build 2 and built 1.",
                                "It was built: Lon is a home centre, owned and empty.",
                                "It was not carried out: the board holds 40 units at most."}));
}

}  // namespace
}  // namespace orb::tests
