'use strict';
// The front: shows what the instrument shows, and hands keys on in the order of their pressing.

const byId = (id) => document.getElementById(id);
const keysOfKeyboard = {
  ArrowUp: 'Up', ArrowDown: 'Down', ArrowLeft: 'Left', ArrowRight: 'Right', Enter: 'Enter',
  F1: 'F1', F2: 'F2', F3: 'F3', F4: 'F4', F5: 'F5', F6: 'Scope', F7: 'Menu', F8: 'Monitor', F9: 'Setup', F10: 'Memory',
  F11: 'Save', F12: 'Light',
};
const repeated = new Set(['Up', 'Down', 'Left', 'Right']);
const held = new Map(); // the button of each key of the keyboard that is down: what Escape is may change meanwhile
const mostWaiting = 16;
const answerTime = 2500; // ms; the processor stand-in has two seconds of them
const latestKey = 1500; // ms, the panel's bound
const longestSilence = 5000; // ms; the panel's beats come every two seconds
const driftOfABeat = 1; // ms; more than any two clocks drift apart from one beat to the next
let waiting = 0;
let lastKey = Promise.resolve();
let notes = {};
let lasting = byId('state').textContent;
let complaint = 0;
let asker = 'This page';
let source = null;
let patience = 0;
let clockAhead = -Infinity; // of the panel's clock before the page's, ms

// What waited too long is not done any more: the screen may have become another meanwhile.
async function post(path, wish, from = performance.now()) {
  if (performance.now() - from > latestKey) throw new Error('The key came too late');
  const at = Number.isFinite(clockAhead) ? from + clockAhead : undefined;
  const answer = await fetch(path, {
    method: 'POST',
    headers: { 'Content-Type': 'application/json' },
    body: JSON.stringify({ ...wish, at }),
    signal: AbortSignal.timeout(answerTime),
  }).catch(() => { throw new Error('The panel does not answer'); });
  if (!answer.ok) throw new Error((await answer.text()).trim() || answer.statusText);
}

// Each key waits until the one before it was taken, for requests of their own may overtake each other.
function pressKey(key) {
  if (waiting >= mostWaiting) return;
  waiting += 1;
  const from = performance.now();
  lastKey = lastKey.then(() => post('key', { key }, from)).catch((error) => complain(error.message)).finally(() => { waiting -= 1; });
}

function setText(element, text) {
  if (element.textContent !== text) element.textContent = text;
}

// For a moment, in the place of what holds all the time.
function complain(text) {
  clearTimeout(complaint);
  setText(byId('state'), text);
  complaint = setTimeout(() => setText(byId('state'), lasting), 4000);
}

function buttonOf(key) {
  return document.querySelector(`#front [data-key="${key}"]`);
}

// A key that is held counts once; the arrows come again.
function hold(button) {
  const key = button.dataset.key;
  pressKey(key);
  button.classList.add('pressed');
  clearTimeout(button.repeat); // of another finger
  if (!repeated.has(key)) return;
  button.repeat = setTimeout(function again() {
    if (waiting === 0) pressKey(key);
    button.repeat = setTimeout(again, 120);
  }, 450);
}

function release(button) {
  clearTimeout(button.repeat);
  button.classList.remove('pressed');
}

for (const button of document.querySelectorAll('#front [data-key]')) {
  button.addEventListener('pointerdown', (event) => {
    if (event.button !== 0) return;
    button.setPointerCapture(event.pointerId);
    hold(button);
  });
  for (const end of ['pointerup', 'pointercancel', 'lostpointercapture']) button.addEventListener(end, () => release(button));
  // The keyboard stays with the screen: Enter is the instrument's, not once more the key that was clicked.
  button.addEventListener('mousedown', (event) => {
    event.preventDefault();
    byId('glass').focus({ preventScroll: true });
  });
  button.addEventListener('contextmenu', (event) => event.preventDefault());
  // A click without a pointer before it: a keyboard or an assistive program.
  button.addEventListener('click', (event) => { if (event.detail === 0) pressKey(button.dataset.key); });
}

function keyOf(event) {
  if (event.ctrlKey || event.altKey || event.metaKey) return '';
  if (event.key === 'Escape') return notes.Dialog ? 'F5' : 'Menu';
  return keysOfKeyboard[event.key] || '';
}

// The page scrolls inside the window: the keys that scroll find it also before anything was clicked.
document.addEventListener('keydown', (event) => {
  if (event.target === document.body && event.key !== 'Tab') byId('page').focus({ preventScroll: true });
}, true);

document.addEventListener('keydown', (event) => {
  const key = keyOf(event);
  const target = event.target;
  // What has a use of its own for a key keeps it.
  const button = target.closest('a, summary, button');
  if (event.repeat && event.key === 'Enter' && button) {
    // The browser would click again and again.
    if (!repeated.has(button.dataset.key) || waiting > 0) event.preventDefault();
    return;
  }
  const own = event.key === 'Enter' ? 'a, summary, button, input, select' : 'input, select';
  if (!key || (target.closest(own) && !/^F\d/.test(event.key))) return;
  event.preventDefault();
  if (event.repeat && (!repeated.has(key) || waiting > 0)) return;
  pressKey(key);
  held.set(event.code, buttonOf(key));
  buttonOf(key).classList.add('pressed');
});
document.addEventListener('keyup', (event) => {
  if (held.has(event.code)) release(held.get(event.code));
  held.delete(event.code);
});
window.addEventListener('blur', () => document.querySelectorAll('#front .pressed').forEach(release));

// Lines that stay the same stay the same for programs that read aloud, too.
function list(parent, texts) {
  while (parent.children.length > texts.length) parent.lastChild.remove();
  while (parent.children.length < texts.length) parent.append(document.createElement('li'));
  texts.forEach((text, index) => setText(parent.children[index], text));
}

// What the screen says about its soft keys is said by the keys, too.
function labelKeys(captions) {
  const words = new Map(captions.split('\n').map((line) => [line.slice(0, 2), line.slice(3)]));
  for (const key of ['F1', 'F2', 'F3', 'F4', 'F5']) {
    const label = words.get(key) ? `${key}: ${words.get(key)}` : key;
    if (buttonOf(key).ariaLabel !== label) buttonOf(key).ariaLabel = label;
  }
}

// What the arrows stand on, with its check mark in words.
function selectedWords(lines) {
  const words = lines.split('\n').filter(Boolean)
    .map((line) => line.replace(/ \[x\]$/, ', checked').replace(/ \[ \]$/, ', not checked'));
  return words.length ? `Selected: ${words.join('; ')}` : '';
}

function showScreen(screen) {
  const image = byId('screen');
  const spoken = (screen.Title || '') + (screen.Dialog ? `. ${screen.Dialog}` : '');
  image.src = `data:image/png;base64,${screen.png}`;
  image.dataset.count = Number(image.dataset.count) + 1;
  image.alt = `Screen of the instrument${spoken ? `: ${spoken}` : ''}`;
  setText(byId('spoken'), spoken);
  setText(byId('selected'), selectedWords(screen.Selected || ''));
  byId('save').hidden = false;
  byId('reading').hidden = !screen.Texts;
  if (screen.Texts && byId('reading').open) list(byId('texts'), screen.Texts.split('\n'));
  labelKeys(screen.Keys || '');
  byId('help').href = `guide/${helpFor(screen.Page, screen.Part)}`;
  notes = screen;
  sayWhatIsShown();
}
byId('reading').addEventListener('toggle', () => list(byId('texts'), (notes.Texts || '').split('\n')));

function showInstrument(there, why, whoAsks) {
  const title = byId('gone').children[0];
  byId('gone').hidden = there;
  document.body.classList.toggle('gone', !there);
  clearTimeout(complaint);
  lasting = there ? 'The instrument answers' : why;
  setText(byId('state'), lasting);
  setText(title, why);
  asker = whoAsks;
  sayWhatIsShown();
  showLight(there);
}

function sayWhatIsShown() {
  setText(byId('gone').children[1], `${notes.png ? 'This is the last picture that came. ' : ''}${asker} goes on asking.`);
}

function hangUp() {
  clearTimeout(patience);
  if (source) source.close();
}

// A connection may be dead without an end, and a panel may stand still: who is silent for long does not answer.
function expectNews() {
  clearTimeout(patience);
  patience = setTimeout(() => lose(false), longestSilence);
}

function listen() {
  hangUp();
  source = new EventSource('events');
  clockAhead = -Infinity;
  const hear = (name, show) => source.addEventListener(name, (event) => { expectNews(); show(JSON.parse(event.data)); });
  hear('screen', showScreen);
  hear('instrument', (state) => showInstrument(state.there, 'The instrument does not answer', 'The panel'));
  hear('supply', showSupply);
  // The beat that was least delayed tells best, but not for ever: a page may be open for weeks, and clocks drift.
  hear('beat', (beat) => { clockAhead = Math.max(clockAhead - driftOfABeat, beat.at - performance.now()); });
  source.addEventListener('error', () => lose(source.readyState === EventSource.CLOSED));
  expectNews();
}

async function whyRefused() {
  const answer = await fetch('events', { signal: AbortSignal.timeout(answerTime) }).catch(() => null);
  if (answer && !answer.ok) return (await answer.text()).trim();
  if (answer) answer.body.cancel();
  return '';
}

async function lose(refused) {
  const lost = source;
  hangUp();
  patience = setTimeout(listen, 3000);
  const why = refused ? await whyRefused() : '';
  if (source !== lost || document.hidden) return;
  showInstrument(false, why || 'The panel does not answer', 'This page');
  forgetSupply('What stands at the inputs is not known');
}

// A browser has few connections for all its tabs: one that nobody sees keeps none.
function listenWhileSeen() {
  hangUp();
  showInstrument(false, 'Waiting for the instrument', 'This page');
  forgetSupply('');
  if (!document.hidden) listen();
}
document.addEventListener('visibilitychange', listenWhileSeen);

listenWhileSeen();
