#!/usr/bin/env bash
# The self-update tests against HTTP and HTTPS servers on 127.0.0.1 (a certificate made here and
# trusted inside Wine), with every kind of manifest and a stand-in setup that records its start.
. "$(dirname "$0")/../wine/harness.sh"
harness_start update

SERVE="$SUITE_DIR/serve"
mkdir -p "$SERVE"
cp "$STAYHOLD_BUILD/tests/fake_setup.exe" "$SERVE/setup.exe"
SETUP_SUM=$(sha256sum "$SERVE/setup.exe" | cut -d' ' -f1)  # lower case, as a maintainer might write it

server_pids=()
trap 'rc=$?; for pid in "${server_pids[@]}"; do _end "$pid"; done; (exit $rc); _harness_stop' EXIT

# Starts the server in the background and sets PORT from its first line.
start_server() {
  local out="$SUITE_DIR/server$#.port"
  python3 "$STAYHOLD_SOURCE/tests/wine/update_server.py" "$SERVE" "$@" >"$out" 2>"$SUITE_DIR/server.err" &
  server_pids+=($!)
  wait_for 10 test -s "$out" || fail "the loopback server did not start: $(cat "$SUITE_DIR/server.err")"
  PORT=$(head -n 1 "$out")
}

start_server
HTTP="http://127.0.0.1:$PORT"
# Wine matches host names against DNS names only: the certificate names localhost (127.0.0.1).
openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj '/CN=localhost' \
  -addext 'subjectAltName=DNS:localhost' -keyout "$SUITE_DIR/key.pem" -out "$SUITE_DIR/cert.pem" \
  >/dev/null 2>&1 || fail "openssl could not make a certificate"
openssl x509 -in "$SUITE_DIR/cert.pem" -outform der -out "$SUITE_DIR/cert.der"
start_server --cert "$SUITE_DIR/cert.pem" --key "$SUITE_DIR/key.pem"
HTTPS="https://localhost:$PORT"
wintool add-root-cert "$(win_path "$SUITE_DIR/cert.der")" | grep -qx added ||
  fail "the certificate could not be trusted inside Wine"
CLOSED_PORT=$(python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1",0)); print(s.getsockname()[1])')

manifest() { printf '%s' "$2" >"$SERVE/$1"; }
manifest newer.json '{"version": "1.0.999", "changes": "New things"}'
manifest equal.json '{"version": "1.0.112", "sha256": "ABC"}'
manifest older.json '{"version": "1.0.99"}'
manifest short.json '{"version": "1.0"}'
manifest history_first.json '{"history": [{"version": "1.0.500"}], "version": "1.0.600"}'
manifest versions.json '{"version": "1.0.200", "changes": "literal \u0041", "changes_cs": "Česká poznámka", "versions": [{"version": "1.0.150", "changes": "a"}]}'
printf '{"version": "1.0.999", "changes": "\xff\xfe broken"}' >"$SERVE/invalid.json"
: >"$SERVE/empty.json"
install='"version": "1.0.999", "setup_url": "'"$HTTP"'/setup.exe"'
manifest install.json "{$install, \"sha256\": \"$SETUP_SUM\"}"
manifest install_wrong_hash.json "{$install, \"sha256\": \"$(printf '0%.0s' {1..64})\"}"
manifest install_no_hash.json "{$install}"
manifest install_no_length.json "{${install/setup.exe/nolength/setup.exe}, \"sha256\": \"$SETUP_SUM\"}"
manifest install_missing_setup.json "{${install/setup.exe/missing.exe}}"
manifest withdrawn.json '{"version": "1.0.112"}'
# Made by the release tool, with a version of its own: a previous launch may hold setup.exe open.
python3 "$STAYHOLD_SOURCE/update/make_release_manifest.py" --setup "$SERVE/setup.exe" \
  --version 1.0.998 --setup-url "$HTTP/setup.exe" --changes "New" --changes-cs "Nové \"věci\"" \
  --out "$SERVE/released.json" || fail "the release tool failed"

export STAYHOLD_TEST_HTTP="$HTTP" STAYHOLD_TEST_HTTPS="$HTTPS" STAYHOLD_TEST_CLOSED_PORT="$CLOSED_PORT" \
  STAYHOLD_TEST_SETUP_PATH="$(win_path "$SERVE/setup.exe")" STAYHOLD_TEST_SETUP_SHA256="$SETUP_SUM"
WINE_TIMEOUT=180 wine_exe "$STAYHOLD_BUILD/tests/stayhold_update_win32_tests.exe" ||
  fail "the self-update tests failed"
