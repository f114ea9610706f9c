// A phone's page: PIN, seat, and the whole screen as the button.
'use strict';

(function () {
  const byId = function (id) { return document.getElementById(id); };
  const kPages = ['join', 'seats', 'play'];
  let pin = store('pawnfield.pin'), token = store('pawnfield.seat'), view = null, online = false;

  const link = Link(function () {
    return pin ? 'hello phone ' + pin + (token ? ' ' + token : '') : '';
  }, {
    up: function () { online = true; paint(); },
    down: function () { online = false; paint(); },
    roundTrip: function (ms) { byId('roundTrip').textContent = ms > 0 ? ms + ' ms' : ''; },
    message: take
  });

  function take(told) {
    if (told.t === 'no') {
      byId('joinNote').textContent = kWhy[told.why] || 'Not now.';
      view = null;
      if (told.why !== 'wait') { pin = store('pawnfield.pin', ''); }
      if (told.why === 'wait') { pin = ''; }
      link.close();
      showOnly('join', kPages);
    } else if (told.t === 'seat') {
      token = store('pawnfield.seat', told.token);
    } else if (told.t === 'unseated') {
      token = store('pawnfield.seat', '');
      view = null;
    } else if (told.t === 'seats') {
      store('pawnfield.pin', pin);
      view = null;
      seats(told.seats);
    } else if (told.t === 'phone') {
      store('pawnfield.pin', pin);
      const before = view && view.state;
      view = told;
      if (before !== told.state) buzz(told.state);
      paint();
    }
  }

  function seats(list) {
    const box = byId('seatList');
    box.textContent = '';
    list.forEach(function (seat) {
      const button = document.createElement('button');
      button.type = 'button';
      button.className = 'p' + seat.n;
      const name = document.createElement('bdi');
      name.textContent = seat.name;
      button.appendChild(name);
      if (!seat.free) button.appendChild(document.createTextNode(' (taken)'));
      button.disabled = !seat.free;
      button.addEventListener('click', function () { link.say('seat ' + seat.n); });
      box.appendChild(button);
    });
    byId('seatNote').textContent = list.some(function (seat) { return seat.free; }) ? ''
      : 'All seats are taken. The operator can free one.';
    showOnly('seats', kPages);
  }

  const kWords = {
    ready: ['PRESS', function () { return 'Question ' + view.question + ' is open'; }],
    pressed: ['PRESSED', function () { return 'Waiting for the others'; }],
    floor: ['YOU', function () { return 'have the floor: answer'; }],
    claim: ['YOU', function () { return 'take a square'; }],
    other: ['', later],
    locked: ['LOCKED', function () { return 'The operator has locked this seat'; }],
    out: ['OUT', function () { return 'This player is not in this game'; }],
    over: ['GAME OVER', function () { return 'Your score: ' + view.score; }],
    wait: ['WAIT', function () { return view.question > 0 ? 'No question is open' : 'The game has not begun'; }]
  };

  function later() {
    let text = 'has the floor';
    if (view.ms === undefined) return text;
    // A remote's or a pad's press is final when it comes, also where a phone's was on its way.
    text += view.ms < 0 ? '; you were ' + -view.ms + ' ms earlier, but it came too late' : '; you were ' + view.ms + ' ms later';
    return view.close ? text + ' (too close to call)' : text;
  }

  function paint() {
    if (!view) return;
    showOnly('play', kPages);
    const state = online ? view.state : 'lost';
    const words = kWords[view.state] || kWords.wait;
    document.body.className = 'phone p' + view.n + ' ' + state;
    byId('name').textContent = view.name;
    byId('word').textContent = !online ? 'LOST' : view.state === 'other' ? view.floorName : words[0];
    byId('line').textContent = !online ? 'No connection; trying again' : words[1]();
    if (!online) byId('roundTrip').textContent = '';
  }

  function buzz(state) {
    const kPatterns = { pressed: 30, floor: [60, 40, 120], other: 80 };
    try { if (navigator.vibrate && kPatterns[state]) navigator.vibrate(kPatterns[state]); } catch (error) { /* None. */ }
  }

  // The event's own time is earlier than this routine; a browser that counts it otherwise is asked for the time now.
  function press(event) {
    if (!view) return;
    const at = now();
    const touched = event.timeStamp > 0 && event.timeStamp <= at && at - event.timeStamp < 1000 ? event.timeStamp : at;
    link.say('press ' + touched.toFixed(3));
  }

  const buzzer = byId('buzzer');
  if (window.PointerEvent) {
    buzzer.addEventListener('pointerdown', function (event) { event.preventDefault(); press(event); });
  } else {
    buzzer.addEventListener('touchstart', function (event) { event.preventDefault(); press(event); });
    buzzer.addEventListener('mousedown', press);
  }
  // Space, Enter, and what clickers by Bluetooth send.
  const kKeys = [' ', 'Spacebar', 'Enter', 'PageUp', 'PageDown', 'ArrowLeft', 'ArrowRight', 'ArrowUp', 'ArrowDown',
    'AudioVolumeUp', 'AudioVolumeDown', 'MediaPlayPause'];
  window.addEventListener('keydown', function (event) {
    if (!view || event.repeat || kKeys.indexOf(event.key) < 0) return;
    event.preventDefault();
    press(event);
  });
  document.addEventListener('contextmenu', function (event) { event.preventDefault(); });
  document.addEventListener('gesturestart', function (event) { event.preventDefault(); });

  PinForm(4, function (text) {
    pin = text;
    byId('joinNote').textContent = '';
    link.open();
  });
  if (pin) link.open();
})();
