// The host's page: question and answer, who has the floor, margins, scores, and what comes next. It only reads.
'use strict';

(function () {
  const byId = function (id) { return document.getElementById(id); };
  const kPages = ['join', 'read'];
  let pin = store('pawnfield.hostpin');

  const link = Link(function () { return pin ? 'hello host ' + pin : ''; }, {
    up: function () { byId('lost').textContent = ''; },
    down: function () { byId('lost').textContent = 'No connection; trying again'; },
    message: take
  });

  function take(told) {
    if (told.t === 'no') {
      byId('joinNote').textContent = kWhy[told.why] || 'Not now.';
      if (told.why === 'wait') pin = ''; else pin = store('pawnfield.hostpin', '');
      link.close();
      showOnly('join', kPages);
    } else if (told.t === 'host') {
      store('pawnfield.hostpin', pin);
      showOnly('read', kPages);
      paint(told);
    }
  }

  // A name or a wording keeps its own direction, and doesn't turn what stands beside it.
  function own(text) {
    const part = document.createElement('bdi');
    part.textContent = text;
    return part;
  }

  function paint(told) {
    byId('count').textContent = told.question > 0 ? 'Question ' + told.question + ' of ' + told.of : '';
    byId('set').textContent = told.set;
    byId('question').textContent = told.winner || told.text || 'No question yet';
    byId('question').className = told.winner ? 'result' : '';
    byId('answer').textContent = told.answer;
    byId('answer').hidden = told.answer === '';
    byId('floor').textContent = told.floor;
    byId('floor').className = told.holder > 0 ? 'p' + told.holder : '';
    byId('clock').textContent = told.clock || '';
    const order = byId('order');
    order.textContent = '';
    (told.winner ? [] : told.order).forEach(function (place, index) {
      const part = document.createElement('span');
      part.appendChild(document.createTextNode((index + 1) + ' '));
      part.appendChild(own(place.name));
      if (index > 0) part.appendChild(document.createTextNode(' ' + place.margin));
      if (index > 0) order.appendChild(document.createTextNode('   '));
      order.appendChild(part);
    });
    byId('next').textContent = told.next ? 'Next: ' : '';
    byId('next').appendChild(own(told.next));
    const box = byId('players');
    box.textContent = '';
    told.players.forEach(function (player) {
      const row = document.createElement('div'), who = document.createElement('span'), points = document.createElement('span');
      row.className = 'p' + player.n + (player.turn ? ' turn' : '');
      who.className = 'who';
      who.textContent = player.name;
      points.className = 'points';
      points.textContent = player.score;
      row.appendChild(who);
      row.appendChild(points);
      box.appendChild(row);
    });
  }

  PinForm(6, function (text) {
    pin = text;
    byId('joinNote').textContent = '';
    link.open();
  });
  if (pin) link.open();
})();
