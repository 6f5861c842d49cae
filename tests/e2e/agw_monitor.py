#!/usr/bin/env python3
"""A tiny AGWPE client that turns monitoring on and prints what the engine sends.

It exists so the Dire Wolf harness can be checked without the console: if this client sees the
fed frames, the engine side of an end-to-end run works and a failure lies in the console.
Usage: agw_monitor.py PORT [--frames N] [--seconds S] [--raw]
Each frame prints as one line: kind, port, calls, length and the data with \\r, \\n and other
control bytes escaped. Exit 0 when N monitor frames (U, I, S, T) arrived within S seconds.
"""
import argparse
import socket
import struct
import sys
import time

HEADER = struct.Struct("<B3xBxBx10s10sII")  # port, kind, pid, from, to, data length, user
MAX_DATA = 64 * 1024


def header(kind, port=0, call_from=b"", call_to=b"", length=0):
    return HEADER.pack(port, ord(kind), 0, call_from, call_to, length, 0)


def show(data):
    out = []
    for b in data:
        if b == 13:
            out.append("\\r")
        elif b == 10:
            out.append("\\n")
        elif b == 92:
            out.append("\\\\")
        elif 32 <= b < 127:
            out.append(chr(b))
        else:
            out.append("\\x%02x" % b)
    return "".join(out)


def connect(port, deadline):
    while True:
        try:
            return socket.create_connection(("127.0.0.1", port), timeout=1.0)
        except OSError as err:
            if time.monotonic() > deadline:
                sys.exit("agw_monitor: cannot connect to 127.0.0.1:%d: %s" % (port, err))
            time.sleep(0.2)


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("port", type=int)
    ap.add_argument("--frames", type=int, default=0, help="stop after this many monitor frames")
    ap.add_argument("--seconds", type=float, default=30.0, help="stop after this long")
    ap.add_argument("--raw", action="store_true", help="also ask for raw (K) frames")
    args = ap.parse_args()

    deadline = time.monotonic() + args.seconds
    sock = connect(args.port, deadline)
    sock.sendall(header("G") + header("m") + (header("k") if args.raw else b""))
    sock.settimeout(0.25)
    buf, seen = b"", 0
    while time.monotonic() < deadline and (args.frames == 0 or seen < args.frames):
        try:
            chunk = sock.recv(4096)
        except socket.timeout:
            continue
        if not chunk:
            print("closed by engine", flush=True)
            break
        buf += chunk
        while len(buf) >= HEADER.size:
            port, kind, pid, cfrom, cto, length, _ = HEADER.unpack_from(buf)
            if length > MAX_DATA:
                sys.exit("agw_monitor: data length %d out of range" % length)
            if len(buf) < HEADER.size + length:
                break
            data = buf[HEADER.size:HEADER.size + length]
            buf = buf[HEADER.size + length:]
            kind = chr(kind)
            print("frame kind=%s port=%d pid=0x%02x from=%s to=%s len=%d data=%s" % (
                kind, port, pid, cfrom.split(b"\0")[0].decode("latin-1"),
                cto.split(b"\0")[0].decode("latin-1"), length, show(data)), flush=True)
            if kind in "UIST":
                seen += 1
    sock.close()
    return 0 if args.frames == 0 or seen >= args.frames else 1


if __name__ == "__main__":
    sys.exit(main())
