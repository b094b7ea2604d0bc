// What changes the page under edit (see design.js).

const paragraphLike = 'p,h1,h2,h3,h4,h5,h6';
const lists = 'ol,ul,dir,menu';
const blocks = 'li,dt,dd,pre,address,' + paragraphLike;
const closesParagraph = 'address,article,aside,blockquote,center,dd,details,dir,div,dl,dt,'
    + 'fieldset,figcaption,figure,footer,form,h1,h2,h3,h4,h5,h6,header,hr,li,main,menu,nav,ol,p,'
    + 'pre,section,table,ul';
const inlineStyles = 'a,b,big,code,em,font,i,kbd,s,samp,small,span,strike,strong,sub,sup,tt,u,var';

// ---- Markup

function rename(element, name) {
    if (element.localName === name)
        return element;
    const place = selectionPlace();
    const renamed = document.createElement(name);
    for (const {name, value} of element.attributes)
        renamed.setAttribute(name, value);
    renamed.append(...element.childNodes);
    element.replaceWith(renamed);
    for (const end of ['anchorNode', 'focusNode'])
        if (place[end] === element)
            place[end] = renamed;
    select(place);
    return renamed;
}

function isEmpty(element) {
    return !element.textContent.trim()
        && !element.querySelector('img,input,hr,br,object,embed,a[name]')
        && ![...element.childNodes].some(node => node.nodeType === Node.COMMENT_NODE);
}

// Cuts an element in two at the place; a half that holds nothing goes. Where the halves meet is
// given back as a range.
function split(element, node, offset) {
    const tail = document.createRange();
    tail.setStart(node, offset);
    tail.setEndAfter(element);
    const second = tail.extractContents().firstElementChild;
    second.removeAttribute('id');
    element.after(second);
    const meeting = document.createRange();
    meeting.setStartAfter(element);
    if (isEmpty(second))
        second.remove();
    if (isEmpty(element)) {
        meeting.setStartBefore(element);
        element.remove();
    }
    meeting.collapse(true);
    return meeting;
}

// The engine puts lists into the paragraph, where no page may have them.
function liftOut(block, container) {
    for (let around; (around = block.parentElement?.closest(container));) {
        const place = selectionPlace();
        const marker = document.createComment('');
        block.replaceWith(marker);
        const meeting = split(around, marker.parentNode,
                              [...marker.parentNode.childNodes].indexOf(marker));
        marker.remove();
        for (const half of [meeting.startContainer.childNodes[meeting.startOffset - 1],
                            meeting.startContainer.childNodes[meeting.startOffset]])
            if (half?.nodeType === Node.ELEMENT_NODE && half.matches(container) && isEmpty(half))
                half.remove();
        meeting.insertNode(block);
        select(place);
    }
}

function deleteSelection() {
    const range = selection().rangeCount && selection().getRangeAt(0);
    if (!range || range.collapsed)
        return;
    if (range.startContainer === range.endContainer)
        range.deleteContents();
    else
        document.execCommand('delete');
}

// By hand: the engine's own command rewrites what it inserts and the blanks beside it.
function insertMarkup(markup) {
    ensureSelection();
    deleteSelection();
    let range = selection().getRangeAt(0);
    const fragment = range.createContextualFragment(markup);
    const last = fragment.lastChild;
    if (!last)
        return;
    const paragraph = elementOf(range.startContainer).closest('p');
    if (paragraph && [...fragment.children].some(child => child.matches(closesParagraph)))
        range = split(paragraph, range.startContainer, range.startOffset);
    range.insertNode(fragment);
    const end = document.createRange();
    if (last.nodeType === Node.TEXT_NODE)
        end.setStart(last, last.data.length);
    else if (last.nodeType === Node.ELEMENT_NODE && last.matches('p,div,li,' + paragraphLike))
        end.selectNodeContents(last), end.collapse(false);
    else
        end.setStartAfter(last);
    selection().collapse(end.startContainer, end.startOffset);
}

const escapeText = text => text.replace(/&/g, '&amp;').replace(/</g, '&lt;');

function insertText(text) {
    const isLiteral = caretElement().closest('pre,textarea');
    const lines = escapeText(text.replace(/\r\n?/g, '\n'));
    insertMarkup(isLiteral ? lines : lines.replace(/\n/g, '<br>'));
}

// What other programs put on the clipboard is a page of their own: its parts that act go.
function insertForeign(html) {
    const page = new DOMParser().parseFromString(html, 'text/html');
    const unwanted = 'script,style,meta,link,title,base,object,embed,iframe';
    page.querySelectorAll(unwanted).forEach(element => element.remove());
    const comments = document.createNodeIterator(page, NodeFilter.SHOW_COMMENT);
    for (let comment; (comment = comments.nextNode());)
        comment.remove();
    for (const element of page.body.querySelectorAll('*'))
        for (const {name} of [...element.attributes])
            if (name.startsWith('on'))
                element.removeAttribute(name);
    insertMarkup(page.body.innerHTML.trim());
}

// ---- Blocks and lists

const blockStyles = [
    ['Normal', 'p'], ['Formatted', 'pre'], ['Address', 'address'], ['Heading 1', 'h1'],
    ['Heading 2', 'h2'], ['Heading 3', 'h3'], ['Heading 4', 'h4'], ['Heading 5', 'h5'],
    ['Heading 6', 'h6'], ['Numbered List', 'ol'], ['Bulleted List', 'ul'],
    ['Directory List', 'dir'], ['Menu List', 'menu'], ['Definition Term', 'dt'],
    ['Definition', 'dd'], ['Paragraph', 'p'],
];

function blockStyle() {
    const block = caretElement().closest(blocks);
    const name = block?.localName === 'li' ? block.parentElement.localName : block?.localName;
    return (blockStyles.find(style => style[1] === name) || ['Normal'])[0];
}

function setBlockStyle(style) {
    const name = blockStyles.find(row => row[0] === style)?.[1];
    if (!name)
        return;
    if (lists.split(',').includes(name))
        setList(name);
    else
        setBlock(name);
}

function caretList() {
    return caretElement().closest(blocks)?.closest('li')?.closest(lists);
}

function setList(name) {
    const list = caretList();
    if (list) {
        rename(list, name);
        return;
    }
    const wasDefinition = caretElement().closest('dl');
    if (wasDefinition)
        setBlock('p');
    document.execCommand(name === 'ol' ? 'insertOrderedList' : 'insertUnorderedList');
    const made = caretElement().closest(lists);
    if (made) {
        liftOut(made, paragraphLike);
        rename(made, name);
    }
}

function leaveList() {
    const list = caretList();
    if (!list)
        return;
    const kept = list.localName === 'ol' ? list : rename(list, 'ul');
    document.execCommand(kept.localName === 'ol' ? 'insertOrderedList' : 'insertUnorderedList');
}

function toggleList(name) {
    if (caretList()?.localName !== name) {
        setList(name);
        return;
    }
    leaveList();
    if (!caretElement().closest(blocks))
        document.execCommand('formatBlock', false, 'p');
}

function setBlock(name) {
    leaveList();
    document.execCommand('formatBlock', false, name);
    const block = caretElement().closest(name);
    const parent = block?.parentElement;
    if (!block)
        return;
    if (name !== 'dt' && name !== 'dd')
        liftOut(block, 'dl');
    else if (parent.localName !== 'dl')
        wrapInDefinitionList(block);
}

function wrapInDefinitionList(block) {
    const place = selectionPlace();
    const before = block.previousElementSibling;
    const isBehindList = before?.localName === 'dl' && !block.previousSibling.data?.trim();
    if (isBehindList) {
        before.append(block);
    } else {
        const list = document.createElement('dl');
        block.replaceWith(list);
        list.append(block);
    }
    select(place);
}
