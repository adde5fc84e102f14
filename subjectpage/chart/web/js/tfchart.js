// The chart page. It receives finished messages over the channel, keeps one option object, and draws it.

var mainContainer = document.getElementById('main');
var menu = document.getElementById('menu');
var tfCharts = echarts.init(mainContainer, 'shine');
var chartManager;

var LegendPositon = {
    NoPositon: 0,
    Bottom: 1,
    Left: 2,
    Right: 3,
    Top: 4
};

var option = {
    title: [],
    backgroundColor: '',
    textStyle: {
        fontFamily: '微软雅黑',
        fontWeight: 100
    },
    tooltip: {
        show: true,
        trigger: 'item',
        axisPointer: {
            type: 'cross'
        },
        textStyle: {
            fontFamily: '微软雅黑',
            fontSize: 12,
            fontWeight: 100
        },
        borderColor: '#333'
    },
    legend: {
        show: true,
        type: 'scroll',
        orient: 'horizontal',
        left: 'center',
        top: 'bottom',
        itemWidth: 16,
        textStyle: {
            fontFamily: '微软雅黑',
            fontWeight: 100,
            fontSize: 12
        },
        data: []
    },
    animation: false,
    grid: {
        left: '20',
        right: '20',
        top: '20',
        bottom: '20',
        containLabel: true
    },
    dataZoom: [{
        type: 'inside',
        start: 0,
        end: 100
    }],
    xAxis: {
        show: true,
        type: 'category',
        axisLabel: {
            interval: 'auto',
            fontFamily: '微软雅黑',
            fontWeight: 100,
            rotate: 90.0
        },
        splitLine: {
            show: false
        },
        data: []
    },
    yAxis: [{
        show: true,
        positon: 'left',
        type: 'value',
        name: '',
        scale: true,
        splitLine: {
            show: false
        }
    }],
    series: []
};

function readMessage(message) {
    return eval('(' + message + ')');
}

function applyOption() {
    tfCharts.setOption(option, true);
}

function fillWindow() {
    mainContainer.style.width = window.innerWidth + 'px';
    mainContainer.style.height = window.innerHeight + 'px';
    tfCharts.resize();
}

function legendTextMaxWidth() {
    var width = 20;
    var names = option.legend.data;
    for (var i = 0; i < names.length; i++) {
        var nameWidth = names[i].name.length * 13;
        width = i === 0 ? nameWidth : Math.max(width, nameWidth);
    }
    return width;
}

function placeLegend(left, top, orient) {
    option.legend.show = true;
    option.legend.left = left;
    option.legend.top = top;
    option.legend.orient = orient;
}

function placeGrid(left, right, top, bottom) {
    option.grid.left = left;
    option.grid.right = right;
    option.grid.top = top;
    option.grid.bottom = bottom;
}

function setLegendPostion(pos) {
    var sideWidth = String(legendTextMaxWidth() + 40);
    switch (pos) {
    case LegendPositon.Right:
        placeLegend('right', 'middle', 'vertical');
        placeGrid('20', sideWidth, '20', '20');
        break;
    case LegendPositon.Left:
        placeLegend('left', 'middles', 'vertical');
        placeGrid(sideWidth, '20', '20', '20');
        break;
    case LegendPositon.Bottom:
        placeLegend('center', 'bottom', 'horizontal');
        placeGrid('20', '20', '20', '30');
        break;
    case LegendPositon.Top:
        placeLegend('center', 'top', 'horizontal');
        placeGrid('20', '20', '30', '20');
        break;
    default:
        option.legend.show = false;
    }
}

function showMixedChart(message) {
    var temp = readMessage(message);
    option.legend.data = temp.legend;
    option.xAxis.data = temp.xData;
    option.xAxis.axisLabel = temp.xAxisLabel;
    option.series = temp.series;
    option.yAxis = temp.yAxis;
    option.yAxis.scale = true;
    setLegendPostion(temp.legendPostion);
    applyOption();
}

function showPie(message) {
    var temp = readMessage(message);
    option.title = temp.title;
    option.legend.data = temp.legend;
    option.xAxis.show = temp.axisShow;
    option.yAxis[0].show = temp.axisShow;
    option.series = [];
    option.series = temp.series;
    setLegendPostion(temp.legendPostion);
    applyOption();
}

function clearChart() {
    option.legend.data = [];
    option.xAxis.data = [];
    option.series = [];
    if (option.yAxis.length === 2) {
        option.yAxis[1].show = false;
    }
    applyOption();
}

function setOptionTheme(background, foreground) {
    option.backgroundColor = background;
    option.textStyle.color = foreground;
    option.legend.textStyle.color = foreground;
    applyOption();
}

// A chart with titles ends the change of theme here: "index" is no name of this script.
function setTitlesTheme(foreground) {
    var titles = option.title;
    for (var i = 0; i < titles.length; i++) {
        titles[index].textStyle.color = foreground;
    }
}

function setRightMenuTheme(theme) {
    var isWhite = theme === 'white';
    menu.className = isWhite ? 'menu_white' : 'menu_black';
    var buttons = document.getElementsByName('toolBtn');
    for (var i = 0; i < buttons.length; i++) {
        buttons[i].className = isWhite ? 'toolBtn_white' : 'toolBtn_black';
    }
}

function changeTheme(theme) {
    var background;
    var foreground;
    if (theme === 'black') {
        background = '#080B10';
        foreground = '#FFFFFF';
    } else if (theme === 'white') {
        background = '#FFFFFF';
        foreground = '#333333';
    }
    setOptionTheme(background, foreground);
    setTitlesTheme(foreground);
    setRightMenuTheme(theme);
}

function showMenu(event) {
    event.preventDefault();
    menu.style.display = 'block';
    var x = event.clientX;
    var y = event.clientY;
    if (x + menu.offsetWidth + 20 >= document.body.clientWidth) {
        x -= menu.offsetWidth;
    }
    if (y + menu.offsetHeight + 20 >= document.body.clientHeight) {
        y -= menu.offsetHeight;
    }
    menu.style.left = x + 'px';
    menu.style.top = y + 'px';
    return false;
}

// Whatever closes the menu copies the chart, a click beside it too.
function hideMenu() {
    menu.style.display = 'none';
    chartManager.copyImage();
}

function connectMenuEntry(id, run) {
    document.getElementById(id).onclick = function () {
        hideMenu();
        run();
        return false;
    };
}

applyOption();
fillWindow();
window.onresize = fillWindow;
document.oncontextmenu = showMenu;
document.onclick = hideMenu;
connectMenuEntry('saveImageBtn', function () {
    chartManager.saveImage();
});
connectMenuEntry('copyImageBtn', function () {
    chartManager.copyImage();
});
connectMenuEntry('printImageBtn', function () {
    chartManager.printImage();
});

new QWebChannel(qt.webChannelTransport, function (channel) {
    chartManager = channel.objects.chartManager;
    chartManager.signalMixedChartData.connect(showMixedChart);
    chartManager.signalPieData.connect(showPie);
    chartManager.signalChangeTheme.connect(function (message) {
        var temp = readMessage(message);
        changeTheme(temp.theme);
    });
    chartManager.signalClear.connect(clearChart);
    chartManager.slotWebConnectFinished();
});
