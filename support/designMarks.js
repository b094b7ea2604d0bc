// Outlines and marks of the page under edit: style sheets that are not part of the document
// (see design.js).

const bordersSheet = new CSSStyleSheet();
bordersSheet.replaceSync(`
    table:not([border]), table[border="0"], table:not([border]) > * > tr > *,
    table[border="0"] > * > tr > *, form {
        outline: 1px dotted #8a8a8a !important; outline-offset: -1px !important;
    }`);
const marksSheet = new CSSStyleSheet();
let hasBorders = false;
let hasDetails = false;
let marksTimer = 0;
const marksLimit = 1000;

const markKinds = new Map([
    ['comment', ['!', '#ffe97f']], ['server', ['?', '#c8b6ff']], ['script', ['S', '#ffc2a8']],
    ['style', ['#', '#bfe3ff']], ['anchor', ['A', '#c4efc0']], ['break', ['↵', '#e4e4e4']],
]);

function markImage(kind) {
    const [sign, colour] = markKinds.get(kind);
    const image = `<svg xmlns="http://www.w3.org/2000/svg" width="13" height="13"><rect x=".5" y=".5"
        width="12" height="12" rx="2" fill="${colour}" stroke="#666"/><text x="6.5" y="10"
        font-family="sans-serif" font-size="9" text-anchor="middle">${sign}</text></svg>`;
    return `url("data:image/svg+xml,${encodeURIComponent(image)}")`;
}

function markKind(node) {
    if (node.nodeType === Node.COMMENT_NODE)
        return /^brenixkept\d+x\d+c$/.test(node.data) ? 'server' : 'comment';
    if (node.matches('script,style,br'))
        return node.localName === 'br' ? 'break' : node.localName;
    return node.matches('a[name]:not([href]), a[id]:not([href])') ? 'anchor' : '';
}

// Where a node that draws nothing would stand.
function placeOf(node) {
    const range = document.createRange();
    const box = (of, isEnd) => {
        range.selectNodeContents(of);
        const boxes = (of.nodeType === Node.ELEMENT_NODE ? of : range).getClientRects();
        const found = boxes[isEnd ? boxes.length - 1 : 0];
        return found && {x: isEnd ? found.right : found.left,
                         y: isEnd ? found.bottom - 15 : found.top};
    };
    if (node.nodeType === Node.ELEMENT_NODE && node.getClientRects().length)
        return box(node, false);
    for (let near = node.nextSibling; near; near = near.nextSibling)
        if (near.nodeType !== Node.COMMENT_NODE && box(near, false))
            return box(near, false);
    for (let near = node.previousSibling; near; near = near.previousSibling)
        if (near.nodeType !== Node.COMMENT_NODE && box(near, true))
            return box(near, true);
    return box(node.parentElement, false);
}

function showMarks() {
    marksTimer = 0;
    marksSheet.replaceSync('');
    if (!hasDetails || !document.body)
        return;
    const nodes = document.createTreeWalker(document.body,
                                            NodeFilter.SHOW_COMMENT | NodeFilter.SHOW_ELEMENT);
    const marks = [];
    const taken = new Map();
    for (let node; marks.length < marksLimit && (node = nodes.nextNode());) {
        const kind = markKind(node);
        const place = kind && placeOf(node);
        if (!place)
            continue;
        const x = Math.round(place.x + scrollX), y = Math.round(place.y + scrollY);
        const key = x + ' ' + y;
        taken.set(key, (taken.get(key) || 0) + 1);
        marks.push(`${markImage(kind)} ${x + 14 * (taken.get(key) - 1)}px ${y - 7}px no-repeat`);
    }
    const root = document.documentElement;
    marksSheet.replaceSync(`html::after { all: initial !important; content: "" !important;
        display: block !important; position: absolute !important; left: 0 !important;
        top: 0 !important; width: ${root.scrollWidth}px !important;
        height: ${root.scrollHeight}px !important; pointer-events: none !important;
        z-index: 2147483647 !important; background: ${marks.join(',') || 'none'} !important; }`);
}

function showMarksSoon() {
    if (hasDetails && !marksTimer)
        marksTimer = setTimeout(showMarks, 50);
}

function show(borders, details) {
    hasBorders = borders;
    hasDetails = details;
    document.adoptedStyleSheets = [...(hasBorders ? [bordersSheet] : []), marksSheet];
    showMarks();
}
