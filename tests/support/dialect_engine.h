// An in-process packet engine that speaks the host interface the way each real engine does
// (Dire Wolf 1.6 and its development version, the UZ7HO QtSoundModem, the AGW Packet Engine):
// its version and registration replies, its monitor texts with their Via marks, time and
// terminators, the order of raw and monitor frames, and its connected-mode notices. Direct-mode
// tests drive it over the in-memory network in virtual time.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/text.h"
#include "link/agw_direct.h"
#include "link/agw_frame.h"
#include "link/ax25_frame.h"
#include "platform/sim/sim_platform.h"

namespace tesk::testing {

enum class Dialect { DireWolf16, DireWolf18, QtSoundModem, AgwPacketEngine };
const char* DialectName(Dialect d);

// A packet on the air, written "SRC>DST,DIGI1*,DIGI2:info". A "*" sets the has-been-repeated
// bit of that digipeater and of every one before it, as the notation means.
Ax25Frame Tnc2(const std::string& line);
std::vector<uint8_t> Ax25Bytes(const Ax25Frame& frame);

class DialectEngine {
 public:
  DialectEngine(SimPlatform& platform, Dialect dialect, std::string host, int port);
  ~DialectEngine();
  DialectEngine(const DialectEngine&) = delete;
  DialectEngine& operator=(const DialectEngine&) = delete;

  void start();       // listens
  void stop();        // stops listening and drops the client
  void dropClient();  // closes the client's connection from this side
  bool clientConnected() const;
  Dialect dialect() const { return m_dialect; }

  // What the engine writes to its client for one packet heard on `port`: the raw and the
  // monitor form, as far as the client switched them on, in this engine's order.
  std::vector<uint8_t> heardBytes(const std::string& tnc2, int port = 0) const;
  void hear(const std::string& tnc2, int port = 0) { write(heardBytes(tnc2, port)); }
  void write(const std::vector<uint8_t>& bytes);  // one write on the stream
  void writeLater(double seconds, const std::vector<uint8_t>& bytes);

  // Connected mode: answers to the client's connect requests, and a scripted other station.
  bool answerConnects = true;
  double answerDelay = 2.0;     // until the confirmation
  double retryOutDelay = 49.0;  // until "RETRYOUT" when nobody answers
  void remoteConnects(const std::string& remote, int port = 0);
  void remoteSends(const std::string& remote, const std::string& text, int port = 0);
  void remoteDisconnects(const std::string& remote, int port = 0);

  // What the client did.
  std::vector<AgwFrame> received;
  std::string kinds() const;  // kinds of `received`, in order
  bool monitorOn = false;
  bool rawOn = false;
  int accepted = 0;
  bool dataWithoutLink = false;  // a "D" for a pair of calls without an open link
  std::vector<std::string> registered;

 private:
  struct Link {
    std::string remote, local;
    int port = 0;
    bool open = false;
  };
  std::string monitorText(const Ax25Frame& f, int port, char kind) const;
  std::vector<uint8_t> monitorBytes(const Ax25Frame& f, int port, char kind) const;
  void onBytes(const std::vector<uint8_t>& bytes);
  void onFrame(const AgwFrame& f);
  void onConnect(const AgwFrame& f);
  void onDisconnect(const AgwFrame& f);
  void onData(const AgwFrame& f);
  void echoTransmission(const AgwFrame& f);
  void sendFrame(char kind, int port, const std::string& from, const std::string& to,
                 const std::string& data, double delay = 0);
  Link* findLink(const std::string& remote);
  void later(double seconds, std::function<void()> fn);

  SimPlatform& m_platform;
  Dialect m_dialect;
  std::string m_host;
  int m_port;
  std::shared_ptr<SimConnection> m_conn;
  std::vector<uint8_t> m_stream;
  std::vector<Link> m_links;
  std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

}  // namespace tesk::testing
