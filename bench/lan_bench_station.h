// A station in LAN mode against an in-memory engine that only counts the frames it gets: the
// bench of every send, from the press to the bytes on the link, in virtual time.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"

namespace tesk {

struct LanBenchStation {
  LanBenchStation(const std::string& folder, int port) {
    StationOptions options;
    options.appPath = (std::filesystem::temp_directory_path() / folder).string();
    std::filesystem::create_directories(options.appPath);
    platform.network.listen("127.0.0.1", port, [this](std::shared_ptr<SimConnection> c) {
      engine = std::move(c);
      // The sim connection keeps every frame for the tests' asserts; a bench of millions of
      // frames lets them go, so that a long run measures the same work as a short one.
      engine->onReceive = [this](const std::vector<uint8_t>&) {
        ++frames;
        engine->received.clear();
      };
    });
    station = std::make_unique<Station>(platform, options);
    StationConfig& config = station->config();
    config.YourCallSign = "XX9TK";
    config.HostName_IP_Default = "127.0.0.1";
    config.LanPort = port;
    config.ToCall = "CQ";
    station->run().LanMode = -1;
    station->parts().tcpLink.AGWWinsockInitialiseLan();
    MainWindow& main = station->mainWindow();
    main.cmbToCall.text = "CQ";
    main.cmbViaCall.text = "RS0ISS,ARISS";
  }
  SimPlatform platform;
  std::shared_ptr<SimConnection> engine;
  long frames = 0;
  std::unique_ptr<Station> station;
};

}  // namespace tesk
