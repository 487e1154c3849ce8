#!/usr/bin/python3
"""Meets the page server as strangers do, and looks whether the next client is served. A sample; with AMORTIX2_ALL=1
in the numbers that the guide promises.

  server_test.py PROGRAM
"""
import errno, os, re, resource, select, signal, socket, subprocess, sys, threading, time

ALL = os.environ.get("AMORTIX2_ALL") == "1"
IDLE, DRIPPING, MIXED = (10000, 600, 100000) if ALL else (300, 60, 0)
LOG_LINE = re.compile(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ \d{3} \d+ (-|/[a-z0-9_./-]*) \d+ us")


class Server:
    def __init__(self, *options):
        self.process = subprocess.Popen([sys.argv[1], "serve", "--listen", "127.0.0.1:0", "--log", *options],
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.port = int(re.search(r"http://127\.0\.0\.1:(\d+)/", self.process.stdout.readline())[1])
        self.log = []
        self.reader = threading.Thread(target=lambda: self.log.extend(self.process.stderr))
        self.reader.start()

    def connect(self):
        return socket.create_connection(("127.0.0.1", self.port), timeout=60)

    def ask(self, request):
        """All that comes back until the server closes the connection."""
        with self.connect() as client:
            try:
                client.sendall(request)
            except OSError:
                pass  # it may have heard enough
            return read_all(client)

    def serves(self):
        return self.ask(b"GET /healthz HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n").endswith(b"\r\n\r\nok\n")

    def stop(self, *signals):
        for number in signals or [signal.SIGTERM]:
            self.process.send_signal(number)
            time.sleep(0.3)
        status = self.process.wait(60)
        self.reader.join()
        return status


def read_all(client):
    answer = bytearray()
    try:
        while piece := client.recv(65536):
            answer += piece
    except ConnectionResetError:
        pass
    return bytes(answer)


def answers(stream):
    """The answers in a stream, each with its status and body; raises when the last is cut short."""
    found = []
    while stream:
        header, rest = re.fullmatch(rb"(.*?)\r\n\r\n(.*)", stream, re.S).groups()
        if header.startswith(b"HTTP/1.1 100 "):
            stream = rest
            continue
        length = int(re.search(rb"\r\nContent-Length: (\d+)", header)[1])
        assert len(rest) >= length, f"{len(rest)} bytes of {length}"
        found.append((int(header[9:12]), header, rest[:length]))
        stream = rest[length:]
    return found


def check(truth, what):
    if not truth:
        check.failed = True
        print("FAILED:", what, file=sys.stderr)


GET, POST, HOST = b"GET / HTTP/1.1\r\n", b"POST /call HTTP/1.1\r\n", b"Host: a\r\n"
NEXT = b"GET /smuggled HTTP/1.1\r\nHost: a\r\n\r\n"
CALL = b'{"call": "Calculator.SimpleLoanCalculator", "args": {"vPurchaseAmt": 9, "vPeriod": 9, "vIntRate": 9}}'
CHUNKED = POST + HOST + b"Transfer-Encoding: chunked\r\n\r\n"


def post(*fields):
    return POST + HOST + b"".join(field + b"\r\n" for field in fields) + b"\r\n"


# One answer of the status; or none, and a closed connection.
MALFORMED = [
    # Where does the request end? What follows must not be taken as another.
    *((400, post(*fields) + b"0\r\n\r\n" + NEXT) for fields in [
        (b"Content-Length: 2", b"Content-Length: 3"), (b"Content-Length: 5", b"Content-Length: 5"),
        (b"Content-Length: 5, 5",), (b"Content-Length: +5",), (b"Content-Length: 0x5",), (b"Content-Length:",),
        (b"Content-Length: 99999999999999999999999",), (b"Content-Length : 5",),
        (b"Content-Length: 5", b"Transfer-Encoding: chunked"), (b"Transfer-Encoding: chunked", b"Content-Length: 5"),
        (b"Transfer-Encoding: chunked", b"Transfer-Encoding: identity"), (b"Transfer-Encoding: chunked, identity",),
        (b"Transfer-Encoding: gzip, chunked",), (b"Transfer-Encoding: \x0bchunked",),
        (b"Transfer-Encoding:\r\n chunked",)]),
    (400, b"POST /call HTTP/1.0\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n" + NEXT),
    *((400, CHUNKED + body + NEXT) for body in [
        b"-1\r\n", b"0x1\r\nx\r\n0\r\n\r\n", b"ffffffffffffffffff\r\n", b"1\r\nxx\r\n0\r\n\r\n", b"1\nx\n0\n\n",
        b"1;" + b"x" * 9000 + b"\r\n"]),
    *((413, request) for request in [
        post(b"Content-Length: 18446744073709551615"), post(b"Content-Length: 65537") + b"x" * 65537 + NEXT,
        CHUNKED + b"fffffff\r\n" + NEXT, CHUNKED + (b"8000\r\n" + b"x" * 0x8000 + b"\r\n") * 3]),
    # Line ends, control characters, hosts, and what is no header.
    *((400, request + b"\r\n") for request in [
        b"GET / HTTP/1.1\nHost: a\n\n", GET + b"Host: a\nX: y\r\n", GET + b"Host: a\rX: y\r\n", b"\r\n" + GET + HOST,
        GET + HOST + b"X: a\r\n b\r\n", GET + HOST + b"X: a\x00b\r\n", b" " + GET + HOST, GET, GET + HOST + HOST,
        GET + b"Host: a b\r\n", GET + HOST + b": x\r\n", GET + HOST + b"X y: z\r\n",
        b"\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03" + b"\xaa" * 200]),  # TLS
    *((400, line + b"\r\n" + HOST + b"\r\n") for line in [
        b"GET /", b"GET / HTTP/2.0", b"GET  / HTTP/1.1", b"G(T / HTTP/1.1", b"GET loan HTTP/1.1", b"GET /#loan HTTP/1.1",
        b"GET /\xff\xfe HTTP/1.1", b"GET /\x00 HTTP/1.1", b"OPTIONS * HTTP/1.1", b"CONNECT a:80 HTTP/1.1"]),
    # Pages that are not there, inputs that are no text, and too much of anything.
    *((status, line + b" HTTP/1.0\r\n\r\n") for status, line in [
        (405, b"DELETE /"), (404, b"GET /../../etc/passwd"), (404, b"GET /%2e%2e/etc/passwd"), (404, b"GET /%zz"),
        (400, b"GET /?q=%zz"), (400, b"GET /?q=%ff%fe"), (400, b"GET /?q=%c0%af"), (400, b"GET /?q=%00")]),
    (414, b"GET /" + b"x" * 70000 + b" HTTP/1.1\r\n" + HOST + b"\r\n"),
    (431, GET + HOST + b"X: " + b"y" * 70000 + b"\r\n\r\n"),
    (0, GET),
    (0, post(b"Content-Length: 9") + b"{}"),
]


def refuses_what_is_malformed(server):
    for status, request in MALFORMED:
        found = answers(server.ask(request))
        check(len(found) == (1 if status else 0) and all(answer[0] == status for answer in found),
              f"{request[:120]!r}: {[answer[0] for answer in found]}, not {status}")
        check(all(b"smuggled" not in answer[1] + answer[2] for answer in found), request[:120])
        check(server.serves(), f"the next client after {request[:120]!r}")


def answers_what_is_sound(server):
    end = b"GET /healthz HTTP/1.1\r\nHost: a\r\nConnection: close\r\n\r\n"
    for statuses, request in [
            ([200, 200], GET + HOST + b"\r\n" + end),
            ([200, 200], b"GET http://a/?x HTTP/1.1\r\n" + HOST + b"\r\n" + end),
            ([200], b"GET / HTTP/1.0\r\n\r\n" + end),
            ([200, 200], b"GET / HTTP/1.0\r\nConnection: keep-alive\r\n\r\n" + end),
            ([200] * 20, (GET + HOST + b"\r\n") * 19 + end),
            ([200, 200], post(b"Content-Length: %d" % len(CALL), b"Expect: 100-continue") + CALL + end),
            ([200, 200], CHUNKED + b"1\r\n{\r\n%x;x=y\r\n" % len(CALL[1:]) + CALL[1:] + b"\r\n0\r\nX: y\r\n\r\n" + end)]:
        found = [answer[0] for answer in answers(server.ask(request))]
        check(found == statuses, f"{request[:120]!r}: {found}")
    head, get = (server.ask(b"%s / HTTP/1.0\r\n\r\n" % method) for method in (b"HEAD", b"GET"))
    date = re.compile(rb"Date: [^\r]*")
    check(date.sub(b"", get).startswith(date.sub(b"", head)) and head.endswith(b"\r\n\r\n"), "HEAD is not GET's header")
    secret = server.ask(b"GET /?secret HTTP/1.0\r\nX-Secret: secret\r\nCookie: secret\r\n\r\n")
    check(b"secret" not in secret.partition(b"\r\n\r\n")[0], "an input in a header")


def serves_beside_idle_and_dripping_clients(server):
    clients = [server.connect() for _ in range(IDLE + DRIPPING)]
    for i in range(8):
        for client in clients[IDLE:]:
            client.send(b"GET / HTTP/1.1\r\n"[i:i + 1])
        check(server.serves(), "beside idle and dripping clients")
    for client in clients[IDLE:]:
        check(read_all(client) == b"", "a dripping client is answered")
    for client in clients:
        client.close()


def stops_under_load():
    server = Server()
    begun = server.connect()  # takes no answer, so that one of them waits half written
    threading.Thread(target=begun.sendall, args=[(GET + HOST + b"\r\n") * 3000], daemon=True).start()
    cut, done = [], []

    # One that was never taken, the server having stopped before.
    gone = (errno.ECONNREFUSED, errno.ECONNRESET, errno.EPIPE, errno.ENOTCONN)

    def load():
        while True:
            try:
                with server.connect() as client:
                    client.sendall((GET + HOST + b"\r\n") * 5)
                    client.shutdown(socket.SHUT_WR)
                    done.append(len(answers(read_all(client))))
            except Exception as error:
                return None if getattr(error, "errno", None) in gone else cut.append(error)

    threads = [threading.Thread(target=load) for _ in range(8)]
    for thread in threads:
        thread.start()
    time.sleep(1)
    server.process.send_signal(signal.SIGTERM)
    for thread in threads:
        thread.join()
    check(b"Connection: close" in answers(read_all(begun))[-1][1], "the last answer does not say that it is")
    check(server.process.wait(60) == 0 and not cut and sum(done) > 0, f"stopped under load: {cut}, {sum(done)} answers")
    server = Server()
    begun = server.connect()
    begun.sendall(GET)
    check(server.stop(signal.SIGTERM, signal.SIGINT) == -signal.SIGINT, "a second signal does not end it")


def keeps_to_its_other_limits():
    server = Server("--connections", "3", "--unsent-bytes", "100", "--idle-time", "1")
    clients = [server.connect() for _ in range(3)]
    time.sleep(0.3)
    check(server.ask(b"")[9:12] == b"503", "a connection too many")
    check([read_all(client) for client in clients] == [b""] * 3, "idle clients are answered")
    check(server.ask(b"GET / HTTP/1.0\r\n\r\n")[9:12] == b"503", "more bytes than may wait")
    check(server.serves() and server.stop() == 0, "after all limits")
    server = Server("--write-time", "1")
    with server.connect() as client:
        client.sendall((b"GET /loan HTTP/1.1\r\n" + HOST + b"\r\n") * 400)
        ended = select.poll()
        ended.register(client, 0)
        check(ended.poll(30000), "a client that takes no answer is kept")
    check(server.serves() and server.stop() == 0, "after a client that took no answer")


def stays_small(server):
    def memory():
        with open(f"/proc/{server.process.pid}/status") as status:
            return int(re.search(r"VmRSS:\s+(\d+)", status.read())[1])

    requests = [row for row in MALFORMED if row[0]]
    requests += [(200, b"GET /%s HTTP/1.0\r\n\r\n" % page) for page in (b"", b"loan", b"refinance", b"healthz")] * 30
    sizes = []
    for i in range(MIXED):
        server.ask(requests[i % len(requests)][1])
        if i % (MIXED // 10) == MIXED // 10 - 1:
            sizes.append(memory())
    print("kB after each tenth of", MIXED, "mixed requests:", sizes)
    check(sizes[-1] < 1.1 * sizes[1], "memory grows")


def main():
    most = resource.getrlimit(resource.RLIMIT_NOFILE)[1]
    resource.setrlimit(resource.RLIMIT_NOFILE, (most, most))
    server = Server("--request-time", "2", "--idle-time", "30")
    refuses_what_is_malformed(server)
    answers_what_is_sound(server)
    serves_beside_idle_and_dripping_clients(server)
    if ALL:
        stays_small(server)
    check(server.stop() == 0, "exit status")
    check(all(LOG_LINE.fullmatch(line.rstrip("\n")) for line in server.log) and len(server.log) > len(MALFORMED), "log")
    check(not re.search("smuggled|secret|passwd", "".join(server.log)), "inputs in the log")
    keeps_to_its_other_limits()
    stops_under_load()
    return getattr(check, "failed", False)


sys.exit(main())
