// The link of a page to the program: says hello, answers pings with the page's clock, and comes back by itself.
'use strict';

function store(key, value) {
  try {
    if (value === undefined) return window.localStorage.getItem(key) || '';
    if (value === '') window.localStorage.removeItem(key); else window.localStorage.setItem(key, value);
  } catch (error) { /* A browser that keeps nothing asks for the PIN again. */ }
  return value;
}

function now() { return performance.now(); }

// hello() gives the words to begin with, or '' to stay away; on.message, on.up and on.down hear of the rest.
function Link(hello, on) {
  let socket = null, timer = 0, tries = 0, lastHeard = 0, up = false;

  function say(words) {
    if (socket && socket.readyState === 1) { socket.send(words); return true; }
    return false;
  }

  function down() {
    if (up) { up = false; on.down(); }
  }

  function later() {
    clearTimeout(timer);
    const wait = Math.min(200 * Math.pow(1.6, tries), 3000);
    tries += 1;
    timer = setTimeout(open, wait);
  }

  function close() {
    clearTimeout(timer);
    if (!socket) return;
    const old = socket;
    socket = null;
    old.onopen = old.onmessage = old.onclose = old.onerror = null;
    old.close();
    down();
  }

  function open() {
    const words = hello();
    close();
    if (!words) return;
    let mine;
    try { mine = new WebSocket('ws://' + location.host + '/link'); } catch (error) { later(); return; }
    socket = mine;
    lastHeard = now();
    mine.onopen = function () { mine.send(words); };
    mine.onmessage = function (event) {
      const received = now();
      lastHeard = received;
      let told;
      try { told = JSON.parse(event.data); } catch (error) { return; }
      tries = 0;
      if (told.t === 'ping') {
        say('pong ' + told.n + ' ' + received.toFixed(3) + ' ' + now().toFixed(3));
        if (!up) { up = true; on.up(); }
        if (on.roundTrip) on.roundTrip(told.rtt);
        return;
      }
      if (told.t !== 'no' && !up) { up = true; on.up(); }
      on.message(told);
    };
    mine.onclose = mine.onerror = function () {
      if (socket !== mine) return;
      socket = null;
      down();
      if (hello()) later();
    };
  }

  // A phone that was locked, or a network that is gone without a word, is noticed by its silence.
  setInterval(function () {
    if (socket && now() - lastHeard > 7000) { close(); later(); }
  }, 1000);
  function wake() {
    if (document.visibilityState === 'visible' && (!socket || now() - lastHeard > 2500)) { tries = 0; open(); }
  }
  document.addEventListener('visibilitychange', wake);
  window.addEventListener('online', wake);
  window.addEventListener('pageshow', wake);
  return { open: open, close: close, say: say, isUp: function () { return up; } };
}

const kWhy = {
  pin: 'That PIN is wrong.',
  wait: 'Too many wrong PINs. Please wait a minute.',
  elsewhere: 'This seat is open in another window.'
};

// A form that asks for a PIN of so many digits and hands it over.
function PinForm(digits, take) {
  const pin = document.getElementById('pin');
  document.getElementById('pinForm').addEventListener('submit', function (event) {
    event.preventDefault();
    const text = pin.value.replace(/[^0-9]/g, '');
    if (text.length === digits) take(text);
    else document.getElementById('joinNote').textContent = 'The PIN has ' + digits + ' digits.';
  });
}

function showOnly(id, ids) {
  ids.forEach(function (one) { document.getElementById(one).hidden = one !== id; });
}
