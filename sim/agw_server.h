// The server side of the AGWPE host interface for the simulated engine: one radio port, any
// number of clients on byte pipes, each with its own monitoring and raw switches (both off on a
// new connection). Requests are answered as the chosen engine answers them; an own transmission
// goes to the air and comes back to every monitoring client as a "T" report a moment later;
// frames heard on the air go out as "U" and "K". Writes are sometimes coalesced and sometimes
// split, as a TCP stream delivers them.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "link/agw_frame.h"
#include "link/ax25_frame.h"
#include "platform/platform.h"
#include "sim/dialect.h"
#include "sim/engine_clock.h"

namespace tesk::sim {

// One accepted connection, as the TCP or in-memory adapter carries it.
class EnginePipe {
 public:
  virtual ~EnginePipe() = default;
  virtual void write(const std::vector<uint8_t>& bytes) = 0;
  virtual void close() = 0;
};

struct ServerCounts {
  int clients = 0;      // connections accepted
  int requests = 0;     // frames read from clients
  int transmitted = 0;  // own frames sent on the air
  int heard = 0;        // frames heard on the air
  int monitored = 0;    // monitor texts of heard frames written to clients
  int writes = 0;       // writes to clients
  int splitWrites = 0;  // writes delivered in two parts
};

class AgwServer {
 public:
  // Dire Wolf closes a client that declares more than this.
  static constexpr uint32_t kMaxDataLen = 2122;
  static constexpr double kTransmitReportDelay = 0.8;

  AgwServer(Dialect dialect, EngineClock& clock, const Clock& wallClock, std::mt19937& rng);

  int attach(std::shared_ptr<EnginePipe> pipe);  // returns the client's number
  void receive(int client, const std::vector<uint8_t>& bytes);
  void detach(int client);

  // A frame heard on the radio port: to every client, raw and monitor as each switched on.
  void hear(const Ax25Frame& frame, int port = 0);
  // Own transmissions, once on the air.
  std::function<void(const Ax25Frame&, int port)> onTransmit;
  // One line for each thing the engine does worth telling.
  std::function<void(const std::string&)> log;

  Dialect dialect() const { return m_dialect; }
  const ServerCounts& counts() const { return m_counts; }
  std::size_t connected() const { return m_clients.size(); }
  // Chance that a write is delivered in two parts; 0 in tests that look at single writes.
  double splitChance = 0.1;

 private:
  struct Client {
    std::shared_ptr<EnginePipe> pipe;
    std::vector<uint8_t> stream;
    bool monitor = false;
    bool raw = false;
    std::vector<std::string> registered;
  };
  void onFrame(int id, Client& c, const AgwFrame& f);
  void reply(Client& c, char kind, int port, const std::string& from, const std::string& data);
  void write(Client& c, const std::vector<uint8_t>& bytes);
  void transmit(const AgwFrame& f);
  std::optional<Ax25Frame> airFrame(const AgwFrame& f) const;
  std::vector<uint8_t> monitorFrame(const Ax25Frame& f, int port, char kind) const;
  void say(const std::string& text) const;

  Dialect m_dialect;
  EngineClock& m_clock;
  const Clock& m_wallClock;
  std::mt19937& m_rng;
  std::map<int, Client> m_clients;
  int m_nextId = 1;
  ServerCounts m_counts;
};

}  // namespace tesk::sim
