// The scores for a streaming program: names, scores, turn, clock and winner on a transparent ground.
'use strict';

(function () {
  const byId = function (id) { return document.getElementById(id); };
  const rows = {};

  const link = Link(function () { return 'hello scores'; }, {
    up: function () { byId('bar').hidden = false; },
    // The stream shows no scores that may be old.
    down: function () { byId('bar').hidden = true; byId('winner').hidden = true; },
    message: function (told) { if (told.t === 'scores') paint(told); }
  });

  function rowOf(n) {
    if (rows[n]) return rows[n];
    const box = document.createElement('div'), who = document.createElement('span'), points = document.createElement('span');
    who.className = 'who';
    points.className = 'points';
    box.appendChild(who);
    box.appendChild(points);
    byId('players').appendChild(box);
    rows[n] = { box: box, who: who, points: points };
    return rows[n];
  }

  function setPoints(points, score) {
    const before = points.textContent;
    if (before === score) return;
    points.textContent = score;
    points.className = 'points';
    if (before === '') return;
    void points.offsetWidth;
    points.className = 'points ' + (Number(score) >= Number(before) ? 'up' : 'down');
  }

  function paint(told) {
    told.players.forEach(function (player) {
      const row = rowOf(player.n);
      row.box.hidden = false;
      row.box.className = 'p' + player.n + (player.turn ? ' turn' : '');
      row.who.textContent = player.name;
      setPoints(row.points, player.score);
    });
    Object.keys(rows).forEach(function (n) { if (Number(n) > told.players.length) rows[n].box.hidden = true; });
    byId('clock').textContent = told.clock || '';
    byId('winner').textContent = told.winner;
    byId('winner').hidden = told.winner === '';
  }

  link.open();
})();
