// Pass scenarios and the stations' texts: the shipped default pass reads, a wrong line is named
// with its number and reason, and the positions are right in both APRS forms (the compressed
// one checked against the APRS reference example, 49.5 N 72.75 W).
#include <gtest/gtest.h>

#include "sim/scenario.h"
#include "sim/sim_engine_bench.h"
#include "sim/traffic.h"

namespace tesk::testing {
namespace {

TEST(Scenario, ReadsPassesAndNamesTheWrongLine) {
  const sim::Scenario d = DefaultPass();
  EXPECT_GT(d.los - d.aos, 500);
  EXPECT_EQ(d.digipeater, (std::vector<std::string>{"RS0ISS", "ARISS", "APRSAT"}));
  ASSERT_NE(d.station("XX7STU"), nullptr);
  EXPECT_EQ(d.station("XX7STU")->reach, sim::Reach::Direct);
  EXPECT_EQ(d.station("XX7STU")->path, "");
  EXPECT_EQ(d.station("XX1ABC")->comment, "QRV via ISS");
  EXPECT_FALSE(d.frames.empty());

  std::string error;
  const std::optional<sim::Scenario> ok = sim::ParseScenario(
      "# comment\n\nstation xx1abc JO22NB both\nat 5 direct XX1ABC>CQ:text # with a hash\n", error);
  ASSERT_TRUE(ok) << error;
  EXPECT_EQ(ok->stations[0].call, "XX1ABC");
  EXPECT_EQ(ok->stations[0].path, "ARISS");
  EXPECT_EQ(ok->frames[0].tnc2, "XX1ABC>CQ:text # with a hash");

  const std::pair<const char*, const char*> bad[] = {
      {"pass 10 5 40", "line 1: pass needs AOS < LOS"},
      {"name x\nevery XX1ABC cq 10 0", "line 2: unknown station XX1ABC"},
      {"station XX1ABC JO22NB far", "line 1: reach is satellite, direct or both"},
      {"station XX1ABC JO22NB both\nevery XX1ABC message 10 0",
       "line 2: a message rule needs an addressee"},
      {"station XX1ABC JO22NB both\nevery XX1ABC dance 10 0", "line 2: unknown traffic kind dance"},
      {"at 5 both no frame here", "line 1: frame is SRC>DST,PATH:info"},
      {"launch now", "line 1: unknown statement launch"}};
  for (const auto& [text, why] : bad) {
    EXPECT_FALSE(sim::ParseScenario(text, error)) << text;
    EXPECT_EQ(error, why);
  }
  EXPECT_FALSE(sim::LoadScenario("/nonexistent/x.pass", error));
}

TEST(Traffic, PositionsAndMessagesHaveTheirAprsForms) {
  EXPECT_EQ(sim::CompressedPosition({49.5, -72.75}), "/5L!!<*e7- sT");
  EXPECT_EQ(sim::PlainPosition({49.5, -72.75}), "4930.00N/07245.00W-");
  const sim::LatLon jo22nb = sim::LocatorToLatLon("JO22NB");
  EXPECT_NEAR(jo22nb.lat, 52.0625, 1e-6);
  EXPECT_NEAR(jo22nb.lon, 5.125, 1e-6);
  EXPECT_NEAR(sim::LocatorToLatLon("IO91").lat, 51.5, 1e-6);
  EXPECT_EQ(sim::LocatorToLatLon("??").lat, 0);

  sim::StationPlan s{"XX1ABC", "JO22NB", "", sim::Reach::Both, "ARISS"};
  const Ax25Frame m = sim::MessageFrame(s, "XX2DEF-7", 3);
  EXPECT_EQ(m.digipeaters.at(0).call, "ARISS");
  EXPECT_EQ(m.info.substr(0, 11), ":XX2DEF-7 :");
  EXPECT_EQ(m.info.substr(m.info.size() - 2), "{3");
  EXPECT_EQ(sim::AckFrame(s, "XX2DEF-7", 3).info, ":XX2DEF-7 :ack3");
  EXPECT_EQ(sim::HeardFrame(s, {"XX2DEF", "XX3GHI"}).info, ":Heard    :XX2DEF XX3GHI");
  EXPECT_NE(sim::CqFrame(s).info.find("JO22NB"), std::string::npos);
}

}  // namespace
}  // namespace tesk::testing
